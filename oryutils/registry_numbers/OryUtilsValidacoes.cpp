#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"
#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"
#include "oryutils/registry_numbers/interno/OutrosDocumentos.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {

TInstanciaGlobal<TOryUtilsValidacoes> GOryUtilsValidacoes;

namespace {

using namespace Interno;

constexpr std::u16string_view CCodigoInvalido = u"Código inválido. Verifique.";

/// What ValidouDocumento handles: the rule of each kind and its warning.
struct TDocumento {
    TTipoInscricao Tipo;
    TMotivoRecusa (*Conferir)(std::u16string_view ANumero);
    std::u16string_view Mensagem;
};
constexpr std::array CDocumentos{
    TDocumento{tiCNPJ, ConferirCnpj<char16_t>, u"CNPJ inválido. Verifique."},
    TDocumento{tiCPF, ConferirCpf<char16_t>, u"CPF inválido. Verifique."},
    TDocumento{tiCEI, ConferirCei, u"CEI inválido. Verifique."},
    TDocumento{tiPIS, ConferirPis, u"PIS inválido. Verifique."},
    TDocumento{tiCNH, ConferirCnh, u"CNH inválida. Verifique."},
    TDocumento{tiCNO, ConferirCei, u"CNO inválida. Verifique."},
};

}  // namespace

bool TOryUtilsValidacoes::ValidouCampo(const TObjeto* ASender, const TWinControl* AControle) {
    if (!AControle || !AControle->PodeReceberFoco()) return false;
    return !ASender || EhMesmoControle(dynamic_cast<const TWinControl*>(ASender), AControle);
}

bool TOryUtilsValidacoes::ValidouCampo(const TObjeto* ASender, std::span<TWinControl* const> AControles) {
    return std::ranges::any_of(AControles,
                               [&](const TWinControl* AControle) { return ValidouCampo(ASender, AControle); });
}

void TOryUtilsValidacoes::TratarResultadoValidacao(TWinControl* AControle, std::u16string_view AMensagem) {
    if (AControle) CosturaInterface().AtribuirFoco(AControle);
    CosturaInterface().Alerta(AMensagem);
    Abort();
}

bool TOryUtilsValidacoes::ValidouCnpjCpf(TTipoInscricao ATipo, std::u16string_view ANumero) noexcept {
    if (ATipo == tiCNPJ) return ConferirCnpj(ANumero) == mrNenhum;
    return ATipo == tiCPF && ConferirCpf(ANumero) == mrNenhum;
}

bool TOryUtilsValidacoes::ValidouCnpjAlfanumerico(std::u16string_view ANumero) noexcept {
    return ConferirCnpjAlfanumerico(ANumero) == mrNenhum;
}

std::u16string TOryUtilsValidacoes::FormatarCnpjAlfanumerico(std::u16string_view ANumero) {
    const TNumeroLido cnpj = LerCnpjAlfanumerico(ANumero);
    if (!TemFormaDeCnpj(cnpj)) return std::u16string(ANumero);
    std::u16string texto;
    EscreverNaMascara(texto, CFormatoCnpj.Mascara, cnpj);
    return texto;
}

bool TOryUtilsValidacoes::ValidouPIS(std::u16string_view ANumero) noexcept { return ConferirPis(ANumero) == mrNenhum; }

bool TOryUtilsValidacoes::ValidouCEI(std::u16string_view ANumero) { return ConferirCei(ANumero) == mrNenhum; }

bool TOryUtilsValidacoes::ValidouCNO(std::u16string_view ANumero) { return ConferirCei(ANumero) == mrNenhum; }

bool TOryUtilsValidacoes::ValidouCNH(std::u16string_view ANumero) noexcept { return ConferirCnh(ANumero) == mrNenhum; }

bool TOryUtilsValidacoes::ValidouNovoFormatoCNH(std::u16string_view ANumero) noexcept {
    return ConferirNovoFormatoCnh(ANumero) == mrNenhum;
}

bool TOryUtilsValidacoes::ValidouFormatoAntigoCNH(std::u16string_view ANumero) noexcept {
    return ConferirFormatoAntigoCnh(ANumero) == mrNenhum;
}

bool TOryUtilsValidacoes::ValidouCodigoMunicipio(std::u16string_view ACodigo) {
    return ConferirCodigoMunicipio(ACodigo) == mrNenhum;
}

bool TOryUtilsValidacoes::ValidouCodigoMunicipioOficial(std::u16string_view ACodigo) {
    return ConferirCodigoMunicipioOficial(ACodigo) == mrNenhum;
}

bool TOryUtilsValidacoes::ValidouIE(std::u16string_view AIE, std::u16string_view AUF) noexcept {
    return TOryUtilsValidacoesIE::Validou(AIE, AUF);
}

bool TOryUtilsValidacoes::ValidouDocumento(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ANumero,
                                           TTipoInscricao ATipo) {
    if (Aparar(ANumero).empty()) return false;
    const auto* documento = std::ranges::find(CDocumentos, ATipo, &TDocumento::Tipo);
    const bool conhecido = documento != CDocumentos.end();
    const bool valido = conhecido && documento->Conferir(ANumero) == mrNenhum;
    if (!valido && ValidouCampo(ASender, AControle))
        TratarResultadoValidacao(AControle, conhecido ? documento->Mensagem : std::u16string_view{});
    return valido;
}

void TOryUtilsValidacoes::ValidarIE(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AIE,
                                    std::u16string_view AUF, std::u16string_view AMensagem) {
    if (ValidouCampo(ASender, AControle) && !ValidouIE(AIE, AUF)) TratarResultadoValidacao(AControle, AMensagem);
}

void TOryUtilsValidacoes::ValidarString(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AValor,
                                        std::u16string_view AMensagem) {
    if (ValidouCampo(ASender, AControle) && Aparar(AValor).empty()) TratarResultadoValidacao(AControle, AMensagem);
}

void TOryUtilsValidacoes::ValidarCodigoCadastral(const TObjeto* ASender, TWinControl* AControle,
                                                 std::u16string_view AValor, std::u16string_view AMensagem) {
    ValidarString(ASender, AControle, AValor, AMensagem);
    const bool recusado = AValor == u"0" || AValor == u"+" || AValor == u"," || AValor.find(u'-') != AValor.npos;
    if (recusado && ValidouCampo(ASender, AControle)) TratarResultadoValidacao(AControle, CCodigoInvalido);
}

void TOryUtilsValidacoes::ValidarCampoNumerico(const TObjeto* ASender, TWinControl* AControle,
                                               std::u16string_view AValor, std::u16string_view AMensagem,
                                               std::int16_t APrecisao, std::int16_t ADecimais) {
    if (!ValidouCampo(ASender, AControle)) return;
    std::ptrdiff_t mantidos = 0;
    std::ptrdiff_t primeiraVirgula = -1;
    for (const char16_t c : AValor) {
        if (c != u',' && !EhDigito(c)) continue;
        if (c == u',' && primeiraVirgula < 0) primeiraVirgula = mantidos;
        ++mantidos;
    }
    const bool temFracao = primeiraVirgula > 0;
    const std::ptrdiff_t inteiros = temFracao ? primeiraVirgula : mantidos;
    const std::ptrdiff_t decimais = temFracao ? mantidos - primeiraVirgula - 1 : 0;
    if (inteiros == 0 || inteiros > APrecisao - ADecimais || decimais > ADecimais)
        TratarResultadoValidacao(AControle, AMensagem);
}

void TOryUtilsValidacoes::ValidarCampoSomenteNumeros(const TObjeto* ASender, TWinControl* AControle,
                                                     std::u16string_view AValor, std::u16string_view AMensagem) {
    if (ValidouCampo(ASender, AControle) && TOryUtilsStrings::TextoEhSomenteNumerico(Aparar(AValor)))
        TratarResultadoValidacao(AControle, AMensagem);
}

void TOryUtilsValidacoes::ValidarCampoSomenteCaracteresEspeciais(const TObjeto* ASender, TWinControl* AControle,
                                                                 std::u16string_view AValor,
                                                                 std::u16string_view AMensagem) {
    if (ValidouCampo(ASender, AControle) && TOryUtilsStrings::TextoPossuiSomenteCaracteresEspeciais(Aparar(AValor)))
        TratarResultadoValidacao(AControle, AMensagem);
}

bool TOryUtilsValidacoes::ValidouMetodosRetorno(std::vector<TValidacaoMetodoRetorno> AMetodos,
                                                TTipoValidacaoResultadoMetodoRetorno ATipo) {
    const bool resultadoQuePara = ATipo == tvrPrimeiroResultadoVerdadeiro;
    bool resultado = false;
    for (TValidacaoMetodoRetorno& metodo : AMetodos) {
        if (!metodo) throw Exception(u"Argumento <AMetodos> não está instanciado.");
        resultado = metodo();
        metodo = nullptr;
        if (resultado == resultadoQuePara) break;
    }
    return resultado;
}

Variant TOryUtilsValidacoes::Iif(bool ACondicao, const Variant& AValorVerdadeiro, const Variant& AValorFalso) {
    return ACondicao ? AValorVerdadeiro : AValorFalso;
}

}  // namespace OryUtils
