#include "oryutils/text/OryUtilsStrings.hpp"

#include "operations/Vinculo.hpp"

namespace Ory {
namespace {

using C = OryUtils::TOryUtilsStrings;

using FTexto = std::u16string(std::u16string_view);
using FTextoCaracteres = std::u16string(std::u16string_view, TCaracteres);
using FTextoLista = std::u16string(std::u16string_view, const TListaDeTextos&);

/// Encode, then decode: what a caller of both gets back.
std::u16string Base64IdaEVolta(std::u16string_view ATexto) {
    return C::ConverterBase64ParaTexto(C::ConverterTextoParaBase64(ATexto));
}

/// The first units of the fixed array; all 65,536 would be mostly zeros. Beyond the array there is nothing.
std::u16string PrefixoDoVetor(std::u16string_view ATexto, int AQuantidade) {
    const auto vetor = C::ConverterTextoParaVetorDeCaracteres(ATexto);
    const auto quantidade = static_cast<std::size_t>(std::max(AQuantidade, 0));
    return {vetor->data(), std::min(quantidade, vetor->size())};
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::TextoEhAlfaNumerico>("TextoEhAlfaNumerico"),
    Operacao<C::TextoEhSomenteNumerico>("TextoEhSomenteNumerico"),
    Operacao<C::TextoEhSomenteCaracteres>("TextoEhSomenteCaracteres"),
    Operacao<C::TextoPossuiCaracteres>("TextoPossuiCaracteres"),
    Operacao<C::TextoPossuiNumeros>("TextoPossuiNumeros"),
    Operacao<C::TextoPossuiSomenteCaracteresEspeciais>("TextoPossuiSomenteCaracteresEspeciais"),
    Operacao<C::EhCaractereAcentuadoOuEspecial>("EhCaractereAcentuadoOuEspecial"),
    Operacao<C::TextoEhParametro>("TextoEhParametro"),
    Operacao<C::TextoContemItemVetor>("TextoContemItemVetor"),

    Operacao<C::RemoverAcentos>("RemoverAcentos"),
    Operacao<C::AllTrim>("AllTrim"),
    Operacao<Sobrecarga<FTexto>(C::LimparTexto)>("LimparTexto"),
    Operacao<Sobrecarga<FTextoCaracteres>(C::LimparTexto)>("LimparTexto:chars"),
    Operacao<Sobrecarga<FTextoLista>(C::LimparTexto)>("LimparTexto:strings"),
    Operacao<C::LimparTextoMantendoCaracteres>("LimparTextoMantendoCaracteres"),
    Operacao<C::ExtrairSomenteNumeros>("ExtrairSomenteNumeros"),
    Operacao<C::RemoverCaractere>("RemoverCaractere"),
    Operacao<C::RemoverCaracteres>("RemoverCaracteres"),
    Operacao<C::RemoverCaractereSomenteDeTextos>("RemoverCaractereSomenteDeTextos"),
    Operacao<C::SubstituirCaracteres>("SubstituirCaracteres"),
    Operacao<C::SubstituirCaracteresAcentuados>("SubstituirCaracteresAcentuados"),
    Operacao<C::SubstituirMultiplosTextos>("SubstituirMultiplosTextos"),

    Operacao<C::BuscarQuantidadeCaractereNoTexto>("BuscarQuantidadeCaractereNoTexto"),
    Operacao<C::BuscarQuantidadeCaractereEmSequencia>("BuscarQuantidadeCaractereEmSequencia"),
    Operacao<C::BuscarTextoFormatado>("BuscarTextoFormatado"),
    Operacao<C::FormatarEspacoEmBranco>("FormatarEspacoEmBranco"),
    Operacao<C::RepetirCaractere>("RepetirCaractere"),
    Operacao<C::BuscarUltimoCaractereTexto>("BuscarUltimoCaractereTexto"),
    Operacao<C::CompletarUltimoCaractereTexto>("CompletarUltimoCaractereTexto"),
    Operacao<C::ExcluirUltimoCaractereTexto>("ExcluirUltimoCaractereTexto"),
    Operacao<C::BuscarValorPadrao>("BuscarValorPadrao"),
    Operacao<C::BuscarPastaDoNivelAnterior>("BuscarPastaDoNivelAnterior"),
    Operacao<C::ExtrairUltimaPastaDaURL>("ExtrairUltimaPastaDaURL"),
    Operacao<C::ExtrairTextoEntreTags>("ExtrairTextoEntreTags"),
    Operacao<C::LimparTagsHtml>("LimparTagsHtml"),
    Operacao<C::FormatarQuebrasDeTextoHtml>("FormatarQuebrasDeTextoHtml"),
    Operacao<C::PossuiGravacaoMascara>("PossuiGravacaoMascara"),
    Operacao<C::BuscarNovoGuid>("BuscarNovoGuid"),
    Operacao<C::ConverterTextoParaBase64>("ConverterTextoParaBase64"),
    Operacao<C::ConverterBase64ParaTexto>("ConverterBase64ParaTexto"),
    Operacao<Base64IdaEVolta>("Base64:idaevolta"),
    Operacao<C::ConverterTeclaVirtualParaCaractere>("ConverterTeclaVirtualParaCaractere"),
    Operacao<PrefixoDoVetor>("ConverterTextoParaVetorDeCaracteres:prefixo"),

    Operacao<C::BuscarMascara>("BuscarMascara"),
    Operacao<C::FormatarInscricaoFederal>("FormatarInscricaoFederal"),

    Operacao<C::ConverterStringListParaTextoComDelimitador>("ConverterStringListParaTextoComDelimitador"),
    Operacao<C::ConverterTextoComDelimitadorParaStringList>("ConverterTextoComDelimitadorParaStringList"),
    Operacao<C::ConverterTextoComDelimitadorParaVetorDeStrings>("ConverterTextoComDelimitadorParaVetorDeStrings"),
    Operacao<C::ConverterStringListParaVetorDeStrings>("ConverterStringListParaVetorDeStrings"),
    Operacao<C::ConverterVetorDeStringsParaStringList>("ConverterVetorDeStringsParaStringList"),
    Operacao<C::ConverterVetorDeStringsParaTextoComDelimitador>("ConverterVetorDeStringsParaTextoComDelimitador"),
    Operacao<C::StringToStringDynArray>("StringToStringDynArray"),
    Operacao<C::ConverterTextoParaListaDeParametros>("ConverterTextoParaListaDeParametros"),
    Operacao<C::ConverterListaDeParametrosParaTexto>("ConverterListaDeParametrosParaTexto"),

    // Older names. Free functions of the same name as the operation need no entry of their own.
    Operacao<Sobrecarga<FTexto>(OryUtils::ClearString)>("ClearString"),
    Operacao<Sobrecarga<FTextoCaracteres>(OryUtils::ClearString)>("ClearString:chars"),
    Operacao<Sobrecarga<FTextoLista>(OryUtils::ClearString)>("ClearString:strings"),
    Operacao<OryUtils::ClearStringKeepChars>("ClearStringKeepChars"),
    Operacao<OryUtils::ExtractLastDirFromUrl>("ExtractLastDirFromUrl"),
    Operacao<OryUtils::GetDefaultValue>("GetDefaultValue"),
    Operacao<OryUtils::GetMask>("GetMask"),
    Operacao<OryUtils::GetNewGuid>("GetNewGuid"),
    Operacao<OryUtils::GetStringFormatada>("GetStringFormatada"),
    Operacao<OryUtils::RemoverCaracter>("RemoverCaracter"),
    Operacao<OryUtils::RemoverCaracterSomenteDeStrings>("RemoverCaracterSomenteDeStrings"),
    Operacao<OryUtils::RepetirCaracter>("RepetirCaracter"),
    Operacao<OryUtils::StrCompleteLastChar>("StrCompleteLastChar"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeTexto() noexcept { return COperacoes; }

}  // namespace Ory
