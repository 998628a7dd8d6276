#include "apps/cadastro/Cadastro.hpp"

#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <algorithm>
#include <cstdint>

namespace OryUtils::Cadastro {
namespace {

constexpr std::size_t CDigitosCpf = 11;
constexpr std::int16_t CPrecisaoValor = 15;
constexpr std::int16_t CDecimaisValor = 2;

bool EstahEmBranco(std::u16string_view ATexto) { return ATexto.find_first_not_of(u' ') == ATexto.npos; }

std::u16string SemPontuacao(std::u16string_view ATexto) {
    std::u16string limpo(ATexto);
    std::erase_if(limpo, [](char16_t c) { return !EhDigito(c) && !EhLetra(c); });
    return limpo;
}

void Recusar(const TObjeto* ASender, TWinControl* AControle, std::u16string_view AMensagem) {
    if (ValidarCampo(ASender, AControle)) TOryUtilsValidacoes::TratarResultadoValidacao(AControle, AMensagem);
}

void ConferirNome(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    ValidarString(ASender, AControle, AValores[caNome], u"Informe o nome do cliente.");
}

void ConferirDocumento(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::u16string& numero = AValores[caDocumento];
    if (std::any_of(numero.begin(), numero.end(), EhLetra)) {
        if (!ValidouCnpjAlfanumerico(numero)) Recusar(ASender, AControle, u"CNPJ inválido. Verifique.");
        return;
    }
    const bool cpf = SemPontuacao(numero).size() <= CDigitosCpf;
    ValidarDocumento(ASender, AControle, numero, cpf ? OryTypes::tiCPF : OryTypes::tiCNPJ);
}

void ConferirUF(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    ValidarString(ASender, AControle, AValores[caUF], u"Escolha a UF.");
}

void ConferirIE(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    if (EstahEmBranco(AValores[caIE])) return;
    ValidarIE(ASender, AControle, SemPontuacao(AValores[caIE]), AValores[caUF],
              u"Inscrição estadual inválida para a UF. Verifique.");
}

void ConferirMunicipio(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::u16string codigo = SemPontuacao(AValores[caMunicipio]);
    if (codigo.empty()) return;
    const bool numerico = std::all_of(codigo.begin(), codigo.end(), EhDigito);
    if (!numerico || !ValidouCodigoMunicipioOficial(codigo))
        Recusar(ASender, AControle, u"Código do município inválido. Verifique.");
}

void ConferirValor(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    if (EstahEmBranco(AValores[caValor])) return;
    ValidarCampoNumerico(ASender, AControle, AValores[caValor], u"Valor inválido. Verifique.", CPrecisaoValor,
                         CDecimaisValor);
}

void ConferirNascimento(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::u16string& data = AValores[caNascimento];
    if (!EstahEmBranco(data) && !TentarTextoParaData(data))
        Recusar(ASender, AControle, u"Data de nascimento inválida: use dia/mês/ano, como 31/12/1999.");
}

}  // namespace

// clang-format off
const std::array<TDescricaoCampo, CQuantidadeCampos> CCampos{{
    {u"&Nome",                  false, 40, &ConferirNome},
    {u"&CPF ou CNPJ",           false, 20, &ConferirDocumento},
    {u"&UF",                    true,   6, &ConferirUF},
    {u"&Inscrição estadual",    false, 20, &ConferirIE},
    {u"Código do &município",   false, 10, &ConferirMunicipio},
    {u"&Valor do crédito",      false, 16, &ConferirValor},
    {u"&Data de nascimento",    false, 12, &ConferirNascimento},
}};

const std::array<std::u16string_view, 27> CUFs{
    u"AC", u"AL", u"AM", u"AP", u"BA", u"CE", u"DF", u"ES", u"GO", u"MA", u"MG", u"MS", u"MT", u"PA",
    u"PB", u"PE", u"PI", u"PR", u"RJ", u"RN", u"RO", u"RR", u"RS", u"SC", u"SE", u"SP", u"TO"};
// clang-format on

std::u16string EscreverPorExtenso(std::u16string_view AValor) {
    std::u16string numero(AValor);
    std::erase(numero, FormatSettings().ThousandSeparator);
    const auto valor = TentarTextoParaExtended(numero);
    if (!valor) return {};
    try {
        return TOryUtilsMatematica::BuscarValorPorExtenso(*valor);
    } catch (const Exception&) {
        return {};  // negative, or more than words can tell
    }
}

void Salvar(const TValores& AValores, const TControles& AControles) {
    for (std::size_t i = 0; i < CCampos.size(); ++i) CCampos[i].Validar(nullptr, AControles[i], AValores);
    GOryUtilsDialogs->Informacao(u"Cliente conferido: todos os campos são válidos.");
}

}  // namespace OryUtils::Cadastro
