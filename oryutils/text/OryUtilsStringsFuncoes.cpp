// The free functions: each forwards to the class operation.
#include "oryutils/text/OryUtilsStrings.hpp"

namespace OryUtils {

std::u16string AllTrim(std::u16string_view ATexto) { return TOryUtilsStrings::AllTrim(ATexto); }

std::u16string BuscarPastaDoNivelAnterior(std::u16string_view ACaminho) {
    return TOryUtilsStrings::BuscarPastaDoNivelAnterior(ACaminho);
}

int BuscarQuantidadeCaractereNoTexto(std::u16string_view ATexto, char16_t ACaractere) {
    return TOryUtilsStrings::BuscarQuantidadeCaractereNoTexto(ATexto, ACaractere);
}

std::u16string ConverterStringListParaTextoComDelimitador(const std::vector<std::u16string>* AStringList,
                                                          std::u16string_view ADelimitador) {
    return TOryUtilsStrings::ConverterStringListParaTextoComDelimitador(AStringList, ADelimitador);
}

std::vector<std::u16string> ConverterStringListParaVetorDeStrings(const std::vector<std::u16string>& AStringList) {
    return TOryUtilsStrings::ConverterStringListParaVetorDeStrings(AStringList);
}

std::u16string ConverterTeclaVirtualParaCaractere(std::uint16_t ATecla) {
    return TOryUtilsStrings::ConverterTeclaVirtualParaCaractere(ATecla);
}

std::optional<std::vector<std::u16string>> ConverterTextoComDelimitadorParaStringList(
    std::u16string_view ATexto, std::u16string_view ADelimitador) {
    return TOryUtilsStrings::ConverterTextoComDelimitadorParaStringList(ATexto, ADelimitador);
}

std::unique_ptr<TVetorDeCaracteres> ConverterTextoParaVetorDeCaracteres(std::u16string_view ATexto) {
    return TOryUtilsStrings::ConverterTextoParaVetorDeCaracteres(ATexto);
}

std::vector<std::u16string> ConverterVetorDeStringsParaStringList(const std::vector<std::u16string>& AVetor) {
    return TOryUtilsStrings::ConverterVetorDeStringsParaStringList(AVetor);
}

bool EhCaractereAcentuadoOuEspecial(char16_t ACaractere) {
    return TOryUtilsStrings::EhCaractereAcentuadoOuEspecial(ACaractere);
}

std::u16string FormatarEspacoEmBranco(std::u16string_view ATexto, int ATamanho) {
    return TOryUtilsStrings::FormatarEspacoEmBranco(ATexto, ATamanho);
}

std::u16string FormatarInscricaoFederal(TTipoInscricao ATipo, std::u16string_view ANumero) {
    return TOryUtilsStrings::FormatarInscricaoFederal(ATipo, ANumero);
}

std::u16string RemoverAcentos(std::u16string_view ATexto) { return TOryUtilsStrings::RemoverAcentos(ATexto); }

std::u16string RemoverCaracteres(TCaracteres ACaracteres, std::u16string_view ATexto) {
    return TOryUtilsStrings::RemoverCaracteres(ACaracteres, ATexto);
}

std::vector<std::u16string> StringToStringDynArray(const std::vector<std::u16string>& AVetor) {
    return TOryUtilsStrings::StringToStringDynArray(AVetor);
}

std::u16string SubstituirCaracteres(std::u16string_view ATexto, std::u16string_view AAntigo,
                                    std::u16string_view ANovo) {
    return TOryUtilsStrings::SubstituirCaracteres(ATexto, AAntigo, ANovo);
}

std::u16string SubstituirMultiplosTextos(std::u16string_view ATexto, const std::vector<std::u16string>& AAntigos,
                                         const std::vector<std::u16string>& ANovos, bool AIgnorarCaixa) {
    return TOryUtilsStrings::SubstituirMultiplosTextos(ATexto, AAntigos, ANovos, AIgnorarCaixa);
}

bool TextoEhAlfaNumerico(std::u16string_view ATexto) { return TOryUtilsStrings::TextoEhAlfaNumerico(ATexto); }

bool TextoEhSomenteCaracteres(std::u16string_view ATexto) { return TOryUtilsStrings::TextoEhSomenteCaracteres(ATexto); }

bool TextoEhSomenteNumerico(std::u16string_view ATexto) { return TOryUtilsStrings::TextoEhSomenteNumerico(ATexto); }

bool TextoPossuiCaracteres(std::u16string_view ATexto) { return TOryUtilsStrings::TextoPossuiCaracteres(ATexto); }

bool TextoPossuiNumeros(std::u16string_view ATexto) { return TOryUtilsStrings::TextoPossuiNumeros(ATexto); }

bool TextoPossuiSomenteCaracteresEspeciais(std::u16string_view ATexto) {
    return TOryUtilsStrings::TextoPossuiSomenteCaracteresEspeciais(ATexto);
}

std::u16string ClearString(std::u16string_view ATexto) { return TOryUtilsStrings::LimparTexto(ATexto); }

std::u16string ClearString(std::u16string_view ATexto, TCaracteres ACaracteres) {
    return TOryUtilsStrings::LimparTexto(ATexto, ACaracteres);
}

std::u16string ClearString(std::u16string_view ATexto, const std::vector<std::u16string>& ATextos) {
    return TOryUtilsStrings::LimparTexto(ATexto, ATextos);
}

std::u16string ClearStringKeepChars(std::u16string_view ATexto, const TConjuntoCaracteres& ACaracteres) {
    return TOryUtilsStrings::LimparTextoMantendoCaracteres(ATexto, ACaracteres);
}

std::u16string ExtractLastDirFromUrl(std::u16string_view AURL) {
    return TOryUtilsStrings::ExtrairUltimaPastaDaURL(AURL);
}

std::u16string GetDefaultValue(std::u16string_view AValor, std::u16string_view APadrao) {
    return TOryUtilsStrings::BuscarValorPadrao(AValor, APadrao);
}

std::u16string GetMask(TTipoInscricao ATipo) { return TOryUtilsStrings::BuscarMascara(ATipo); }

std::u16string GetNewGuid() { return TOryUtilsStrings::BuscarNovoGuid(); }

std::u16string GetStringFormatada(std::u16string_view ATexto, int ATamanho, std::u16string_view APreenchimento) {
    return TOryUtilsStrings::BuscarTextoFormatado(ATexto, ATamanho, APreenchimento);
}

std::u16string RemoverCaracter(std::u16string_view ATexto, std::u16string_view ACaracteres) {
    return TOryUtilsStrings::RemoverCaractere(ATexto, ACaracteres);
}

std::u16string RemoverCaracterSomenteDeStrings(std::u16string_view ATexto, char16_t ACaractere) {
    return TOryUtilsStrings::RemoverCaractereSomenteDeTextos(ATexto, ACaractere);
}

std::u16string RepetirCaracter(char16_t ACaractere, int AQuantidade) {
    return TOryUtilsStrings::RepetirCaractere(ACaractere, AQuantidade);
}

std::u16string StrCompleteLastChar(char16_t ACaractere, std::u16string_view ATexto) {
    return TOryUtilsStrings::CompletarUltimoCaractereTexto(ACaractere, ATexto);
}

}  // namespace OryUtils
