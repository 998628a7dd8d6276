#include "oryutils/files/interno/LinhasDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils {

void TLinhasDoLog::Adicionar(std::u16string_view ALinha) {
    if (FLinhas.empty()) FPronto.clear();  // it may hold the text of a log without lines
    const std::size_t inicio = FPronto.size();
    FLinhas.push_back({inicio, nullptr});
    try {
        if (!AcrescentarCodificado(FPronto, ALinha, FCodificacao))
            FLinhas.back().Original = std::make_unique<std::u16string>(ALinha);
        AcrescentarCodificado(FPronto, Interno::BuscarQuebraDeLinha(), FCodificacao);
    } catch (...) {
        FPronto.resize(inicio);
        FLinhas.pop_back();
        throw;
    }
}

void TLinhasDoLog::AdicionarBytes(std::string_view ALinha) {
    Adicionar({});
    FPronto.insert(FLinhas.back().Inicio, ALinha);
}

void TLinhasDoLog::Inserir(std::size_t AIndice, std::u16string_view ALinha) {
    const std::size_t quantidade = FLinhas.size();
    Adicionar(ALinha);
    if (AIndice == quantidade) return;
    const std::size_t inicio = FLinhas[AIndice].Inicio;
    const std::size_t corte = FLinhas.back().Inicio;
    const std::size_t tamanho = FPronto.size() - corte;
    const auto ponto = [](auto& ALista, std::size_t APosicao) {
        return ALista.begin() + static_cast<std::ptrdiff_t>(APosicao);
    };
    std::rotate(ponto(FPronto, inicio), ponto(FPronto, corte), FPronto.end());
    std::rotate(ponto(FLinhas, AIndice), FLinhas.end() - 1, FLinhas.end());
    FLinhas[AIndice].Inicio = inicio;
    for (std::size_t i = AIndice + 1; i <= quantidade; ++i) FLinhas[i].Inicio += tamanho;
    ++FGeracao;
}

void TLinhasDoLog::Limpar() {
    FLinhas.clear();
    FPronto.clear();
    ++FGeracao;
}

void TLinhasDoLog::ColocarAntes(TLinhasDoLog&& AOutras) {
    for (TLinha& linha : FLinhas) {
        linha.Inicio += AOutras.FPronto.size();
        AOutras.FLinhas.push_back(std::move(linha));
    }
    if (!FLinhas.empty()) AOutras.FPronto += FPronto;
    AOutras.FGeracao = FGeracao + 1;
    *this = std::move(AOutras);
}

std::string_view TLinhasDoLog::BuscarBytes(std::size_t AIndice) const noexcept {
    const std::size_t inicio = FLinhas[AIndice].Inicio;
    const std::size_t fim = AIndice + 1 < FLinhas.size() ? FLinhas[AIndice + 1].Inicio : FPronto.size();
    return std::string_view(FPronto).substr(inicio, fim - inicio - Interno::BuscarQuebraDeLinha().size());
}

std::u16string TLinhasDoLog::GetTexto() const {
    const std::u16string_view quebra = Interno::BuscarQuebraDeLinha();
    std::u16string texto;
    texto.reserve(FPronto.size());
    for (std::size_t i = 0; i < FLinhas.size(); ++i) {
        if (FLinhas[i].Original)
            texto += *FLinhas[i].Original;
        else
            AcrescentarDecodificado(texto, BuscarBytes(i), FCodificacao);
        texto += quebra;
    }
    if (!texto.empty()) texto.resize(texto.size() - quebra.size());
    return texto;
}

void TLinhasDoLog::SetCodificacao(TCodificacaoLog ACodificacao) {
    if (FCodificacao == ACodificacao) return;
    TLinhasDoLog outras;
    outras.FCodificacao = ACodificacao;
    outras.FGeracao = FGeracao + 1;
    std::u16string linha;
    for (std::size_t i = 0; i < FLinhas.size(); ++i) {
        linha.clear();
        if (FLinhas[i].Original)
            outras.Adicionar(*FLinhas[i].Original);
        else if (AcrescentarDecodificado(linha, BuscarBytes(i), FCodificacao))
            outras.Adicionar(linha);
        else
            outras.AdicionarBytes(BuscarBytes(i));
    }
    *this = std::move(outras);
}

TTextoPronto TLinhasDoLog::BuscarTextoPronto() {
    if (!FLinhas.empty()) return {FPronto, FGeracao};
    // A line break alone, which no first line continues.
    if (FPronto.empty()) AcrescentarCodificado(FPronto, Interno::BuscarQuebraDeLinha(), FCodificacao);
    return {FPronto, FGeracao++};
}

}  // namespace OryUtils
