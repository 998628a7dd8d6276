#include "oryutils/text/interno/FormulaVariaveis.hpp"

#include "oryutils/runtime/Caixa.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

char16_t Minuscula(char16_t c) noexcept {
    if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c + 32);
    return c < 128 ? c : MinusculaDe(c);
}

constexpr std::size_t CSemNome = std::u16string_view::npos;

}  // namespace

std::size_t TVariaveis::TDispersao::operator()(std::u16string_view ANome) const noexcept {
    std::uint64_t valor = 14695981039346656037U;
    for (const char16_t c : ANome) valor = (valor ^ Minuscula(c)) * 1099511628211U;
    return static_cast<std::size_t>(valor ^ valor >> 32);
}

bool TVariaveis::TIgualdade::operator()(std::u16string_view AUm, std::u16string_view AOutro) const noexcept {
    return std::equal(AUm.begin(), AUm.end(), AOutro.begin(), AOutro.end(),
                      [](char16_t a, char16_t b) { return a == b || Minuscula(a) == Minuscula(b); });
}

void TVariaveis::Indexar(std::size_t ALinha) {
    const std::size_t igual = FLinhas[ALinha].find(u'=');
    if (igual != CSemNome) FIndice.try_emplace(FLinhas[ALinha].substr(0, igual), TEntrada{.Linha = ALinha});
}

void TVariaveis::SetLinhas(std::vector<std::u16string> ALinhas) {
    FLinhas = std::move(ALinhas);
    FIndice.clear();
    for (std::size_t i = 0; i < FLinhas.size(); ++i) Indexar(i);
}

void TVariaveis::Definir(std::u16string_view ANome, Extended AValor, char16_t ASeparador) {
    std::array<char16_t, CTamanhoMaximoExtended> valor;
    std::u16string linha(ANome);
    (linha += u'=') += EscreverExtended(AValor, valor, ASeparador);
    const auto achada = FIndice.find(ANome);
    if (achada != FIndice.end()) {
        FLinhas[achada->second.Linha] = std::move(linha);
        achada->second.Geracao = 0;
        return;
    }
    FLinhas.push_back(std::move(linha));
    Indexar(FLinhas.size() - 1);
}

void TVariaveis::Limpar() {
    FLinhas.clear();
    FIndice.clear();
}

std::u16string_view TVariaveis::BuscarTexto(std::u16string_view ANome, TErroFormula& AErro) {
    const auto achada = FIndice.find(ANome);
    if (achada == FIndice.end()) {
        AErro = {meVariavel, std::u16string(ANome)};
        return {};
    }
    TEntrada& entrada = achada->second;
    if (entrada.Geracao != FGeracao) {
        std::u16string_view linha = FLinhas[entrada.Linha];
        linha.remove_prefix(linha.find(u'=') + 1);
        const auto valor = TentarTextoParaExtended(linha);
        if (!valor) {
            AErro = {meNumero, std::u16string(linha)};
            return {};
        }
        const auto texto = EscreverExtended(FRegras.Ajustar(*valor), entrada.Texto, FRegras.SeparadorDecimal);
        if (texto.data() != entrada.Texto.data()) std::copy(texto.begin(), texto.end(), entrada.Texto.begin());
        entrada.Tamanho = static_cast<std::uint8_t>(texto.size());
        entrada.Geracao = FGeracao;
    }
    return {entrada.Texto.data(), entrada.Tamanho};
}

}  // namespace OryUtils::Interno
