#include "oryutils/text/interno/FormulaVariaveis.hpp"

#include <algorithm>
#include <bit>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CSemNome = std::u16string_view::npos;

std::uint64_t CalcularDispersao(std::u16string_view ANome) noexcept {
    TDispersao dispersao;
    for (const char16_t c : ANome) dispersao.Juntar(c);
    return dispersao.Valor();
}

/// Whether ALinha, which starts with a name and a "=", is that of ANome.
bool EhDaVariavel(std::u16string_view ALinha, std::u16string_view ANome) noexcept {
    if (ALinha.size() <= ANome.size() || ALinha[ANome.size()] != u'=') return false;
    for (std::size_t i = 0; i < ANome.size(); ++i)
        if (ALinha[i] == u'=' ||
            (ALinha[i] != ANome[i] && TDispersao::Minuscula(ALinha[i]) != TDispersao::Minuscula(ANome[i])))
            return false;
    return true;
}

}  // namespace

TVariaveis::TEntrada* TVariaveis::Buscar(std::u16string_view ANome) noexcept {
    return Buscar(ANome, CalcularDispersao(ANome));
}

TVariaveis::TEntrada* TVariaveis::Buscar(std::u16string_view ANome, std::uint64_t ADispersao) noexcept {
    if (FTabela.empty()) return nullptr;
    const std::size_t mascara = FTabela.size() - 1;
    for (std::size_t i = ADispersao & mascara; FTabela[i] != 0; i = (i + 1) & mascara) {
        TEntrada& entrada = FEntradas[FTabela[i] - 1];
        if (entrada.Dispersao == ADispersao && EhDaVariavel(FLinhas[entrada.Linha], ANome)) return &entrada;
    }
    return nullptr;
}

void TVariaveis::Indexar(std::size_t ALinha) {
    const std::u16string_view linha = FLinhas[ALinha];
    const std::size_t igual = linha.find(u'=');
    if (igual == CSemNome || Buscar(linha.substr(0, igual))) return;
    FEntradas.push_back({.Linha = ALinha, .Dispersao = CalcularDispersao(linha.substr(0, igual))});
    MontarTabela();
}

/// Puts the last entry in its place, and all of them where the table has to grow: half of it stays free.
void TVariaveis::MontarTabela() {
    std::size_t primeira = FEntradas.size() - 1;
    if (FTabela.size() < FEntradas.size() * 2) {
        FTabela.assign(std::bit_ceil(FEntradas.size() * 4), 0);
        primeira = 0;
    }
    for (std::size_t e = primeira; e < FEntradas.size(); ++e) {
        std::size_t i = FEntradas[e].Dispersao & (FTabela.size() - 1);
        while (FTabela[i] != 0) i = (i + 1) & (FTabela.size() - 1);
        FTabela[i] = static_cast<std::uint32_t>(e + 1);
    }
}

void TVariaveis::SetLinhas(std::vector<std::u16string> ALinhas) {
    FLinhas = std::move(ALinhas);
    FEntradas.clear();
    FTabela.clear();
    for (std::size_t i = 0; i < FLinhas.size(); ++i) Indexar(i);
}

void TVariaveis::Definir(std::u16string_view ANome, Extended AValor, char16_t ASeparador) {
    std::array<char16_t, CTamanhoMaximoExtended> valor;
    std::u16string linha(ANome);
    (linha += u'=') += EscreverExtended(AValor, valor, ASeparador);
    if (TEntrada* const entrada = Buscar(ANome)) {
        FLinhas[entrada->Linha] = std::move(linha);
        entrada->Geracao = 0;
        return;
    }
    FLinhas.push_back(std::move(linha));
    Indexar(FLinhas.size() - 1);
}

void TVariaveis::Limpar() {
    FLinhas.clear();
    FEntradas.clear();
    FTabela.clear();
}

/// Makes the value again when it is not that of the rules; false when the line holds no number.
bool TVariaveis::Preparar(TEntrada& AEntrada) const {
    if (AEntrada.Geracao == FGeracao) return true;
    std::u16string_view linha = FLinhas[AEntrada.Linha];
    linha.remove_prefix(linha.find(u'=') + 1);
    const auto lido = TentarTextoParaExtended(linha);
    if (!lido) return false;
    const Extended ajustado = FRegras.Ajustar(*lido);
    TValor& valor = AEntrada.Valor;
    const auto texto = EscreverExtended(ajustado, valor.Texto, FRegras.SeparadorDecimal);
    if (texto.data() != valor.Texto.data()) std::copy(texto.begin(), texto.end(), valor.Texto.begin());
    valor.Tamanho = static_cast<std::uint8_t>(texto.size());
    valor.Decimal = DecimalDe(ajustado);
    AEntrada.Geracao = FGeracao;
    return true;
}

std::u16string_view TVariaveis::BuscarTexto(std::u16string_view ANome, TErroFormula& AErro) {
    TEntrada* const entrada = Buscar(ANome);
    if (!entrada) {
        AErro = {meVariavel, std::u16string(ANome)};
        return {};
    }
    if (!Preparar(*entrada)) {
        const std::u16string& linha = FLinhas[entrada->Linha];
        AErro = {meNumero, linha.substr(linha.find(u'=') + 1)};
        return {};
    }
    return {entrada->Valor.Texto.data(), entrada->Valor.Tamanho};
}

}  // namespace OryUtils::Interno
