// The checks of fields: accountant registry, e-mail, addresses, dates, names and typed characters.
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseCRC.hpp"
#include "oryutils/registry_numbers/interno/Enderecos.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using namespace Interno;
using C = TOryUtilsValidacoes;

constexpr std::u16string_view CListaVazia = u"Não é possível validar a lista de e-mail. Lista vazia.";
constexpr std::u16string_view CEmailsInvalidos = u"Os seguintes endereços de e-mail são inválidos: \r\n\r\n";
constexpr std::u16string_view CNovaLinha = u"\r\n";

/// Reports when the check applies to AControle and AValido says false. AValido is called only when the check applies.
/// The result is true: a report ends the caller.
template <typename TRegra>
bool Exigir(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AMensagem, TRegra AValido) {
    if (C::ValidouCampo(ASender, AControle) && !AValido()) C::TratarResultadoValidacao(AControle, AMensagem);
    return true;
}

bool EhPositiva(std::optional<TDateTime> AData) { return AData.value_or(0) > 0; }

constexpr bool EhInicioDeIdentificador(char16_t ACaractere) { return EhLetra(ACaractere) || ACaractere == u'_'; }

bool EhIdentificador(std::u16string_view ANome) {
    return !ANome.empty() && EhInicioDeIdentificador(ANome.front()) &&
           std::ranges::all_of(ANome, [](char16_t c) { return EhInicioDeIdentificador(c) || EhDigito(c); });
}

constexpr bool EhCampoInteiro(TFieldType ATipo) {
    return ATipo == ftSmallint || ATipo == ftInteger || ATipo == ftLargeint;
}
constexpr bool EhCampoDecimal(TFieldType ATipo) {
    return ATipo == ftFloat || ATipo == ftCurrency || ATipo == ftBCD || ATipo == ftFMTBcd || ATipo == ftExtended;
}

}  // namespace

bool C::ValidouCRC(std::u16string_view ACRC) noexcept {
    TOryUtilsValidacoesCRC crc;
    crc.SetCRC(ACRC);
    crc.Validar();
    return crc.GetValido();
}

bool C::ValidouEmail(std::u16string_view AEndereco) noexcept { return ConferirEmail(AEndereco) == reNenhuma; }

void C::ValidouListaEmail(const std::vector<std::u16string>& AEnderecos, TResultStatus& AStatus) {
    AStatus = {};
    std::u16string invalidos;
    for (const std::u16string& endereco : AEnderecos) {
        if (ValidouEmail(endereco)) continue;
        if (!invalidos.empty()) invalidos += CNovaLinha;
        invalidos += endereco;
    }
    if (AEnderecos.empty())
        AStatus = {false, std::u16string(CListaVazia)};
    else if (!invalidos.empty())
        AStatus = {false, std::u16string(CEmailsInvalidos) + invalidos};
}

bool C::ValidouEnderecoIP(std::u16string_view AEndereco) noexcept { return ConferirEnderecoIp(AEndereco) == riNenhuma; }

bool C::ValidouData(std::u16string_view ATexto) { return EhPositiva(TentarTextoParaData(ATexto)); }

bool C::ValidouHora(std::u16string_view ATexto) { return EhPositiva(TentarTextoParaHora(ATexto)); }

bool C::ValidouDataHora(std::u16string_view ATexto) { return EhPositiva(TentarTextoParaDataHora(ATexto)); }

bool C::ValidouCaractereControle(char16_t ACaractere, std::u16string_view ATexto, TFieldType ATipo,
                                 std::uint16_t AQuantidade) noexcept {
    constexpr char16_t CBackspace = 8;
    if (!EhCampoInteiro(ATipo) && !EhCampoDecimal(ATipo)) return true;
    if (ACaractere == CBackspace || EhDigito(ACaractere)) return true;
    if (EhCampoInteiro(ATipo) || (ACaractere != u',' && ACaractere != u'.')) return false;
    return std::ranges::count(ATexto, ACaractere) <= AQuantidade;
}

void C::ValidarCRC(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ACRC,
                   std::u16string_view AMensagem) {
    Exigir(ASender, AControle, AMensagem, [&] { return ValidouCRC(ACRC); });
}

void C::ValidarEmail(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AEndereco,
                     std::u16string_view AMensagem) {
    Exigir(ASender, AControle, AMensagem, [&] { return ValidouEmail(Aparar(AEndereco)); });
}

void C::ValidarListaEmail(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                          std::u16string_view AMensagem, std::u16string_view ADelimitador) {
    if (!ValidouCampo(ASender, AControle)) return;
    const auto enderecos = TOryUtilsStrings::ConverterTextoComDelimitadorParaStringList(ATexto, ADelimitador);
    TResultStatus status;
    ValidouListaEmail(enderecos.value_or(std::vector<std::u16string>()), status);
    if (!status.Status)
        TratarResultadoValidacao(AControle, AMensagem.empty() ? std::u16string_view(status.Mensagem) : AMensagem);
}

bool C::ValidouData(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                    std::u16string_view AMensagem) {
    return Exigir(ASender, AControle, AMensagem, [&] { return ValidouData(ATexto); });
}

bool C::ValidouHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                    std::u16string_view AMensagem) {
    return Exigir(ASender, AControle, AMensagem, [&] { return ValidouHora(ATexto); });
}

bool C::ValidouDataHora(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATexto,
                        std::u16string_view AMensagem) {
    return Exigir(ASender, AControle, AMensagem, [&] { return ValidouDataHora(ATexto); });
}

bool C::ValidouEnderecoIP(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AEndereco,
                          std::u16string_view AMensagem) {
    return Exigir(ASender, AControle, AMensagem, [&] { return ValidouEnderecoIP(AEndereco); });
}

void C::ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AInicio,
                             std::u16string_view AFim, std::u16string_view AMensagem) {
    const TDateTime inicio = TentarTextoParaData(AInicio).value_or(-1);
    ValidarDataInicioFim(ASender, AControle, inicio, TentarTextoParaData(AFim).value_or(0), AMensagem);
}

void C::ValidarDataInicioFim(const TObjeto* ASender, TWinControl* AControle, TDateTime AInicio, TDateTime AFim,
                             std::u16string_view AMensagem) {
    if (AFim > 0) Exigir(ASender, AControle, AMensagem, [&] { return !(AFim < AInicio); });
}

void C::ValidarDiretorio(const TObjeto* ASender, TWinControl* AControle, std::u16string_view APasta,
                         std::u16string_view AMensagem) {
    ValidarString(ASender, AControle, APasta, AMensagem);
    Exigir(ASender, AControle, AMensagem, [&] { return Interno::ExistePasta(Aparar(APasta)); });
}

void C::ValidarCampoNomeArquivo(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANome,
                                std::u16string_view AMensagem) {
    Exigir(ASender, AControle, AMensagem,
           [&] { return std::ranges::none_of(Aparar(ANome), Interno::EhProibidoEmNomeDeArquivo); });
}

void C::ValidarCampoNomeComponente(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANome,
                                   std::u16string_view AMensagem) {
    Exigir(ASender, AControle, AMensagem, [&] { return EhIdentificador(Aparar(ANome)); });
}

void C::ValidarConteudoVariavel(const TObjeto* ASender, TWinControl* AControle, bool AFalhou,
                                std::u16string_view AMensagem) {
    const bool sempre = !ASender && !AControle;
    if (AFalhou && (sempre || ValidouCampo(ASender, AControle))) TratarResultadoValidacao(AControle, AMensagem);
}

}  // namespace OryUtils
