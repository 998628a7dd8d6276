#include "oryutils/files/interno/LinhasDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <utility>

namespace OryUtils {

void TLinhasDoLog::Adicionar(std::u16string ALinha) {
    FLinhas.push_back(std::move(ALinha));
    if (FProntas + 1 == FLinhas.size()) Codificar(FLinhas.back());
}

void TLinhasDoLog::Inserir(std::size_t AIndice, std::u16string ALinha) {
    if (AIndice == FLinhas.size()) return Adicionar(std::move(ALinha));
    FLinhas.insert(FLinhas.begin() + static_cast<std::ptrdiff_t>(AIndice), std::move(ALinha));
    Refazer();
}

void TLinhasDoLog::Substituir(std::vector<std::u16string> ALinhas) {
    FLinhas = std::move(ALinhas);
    Refazer();
}

std::u16string TLinhasDoLog::GetTexto() const {
    const std::u16string_view quebra = Plataforma::BuscarQuebraDeLinha();
    std::size_t tamanho = 0;
    for (const std::u16string& linha : FLinhas) tamanho += linha.size() + quebra.size();
    std::u16string texto;
    texto.reserve(tamanho);
    for (const std::u16string& linha : FLinhas) texto.append(linha).append(quebra);
    if (!texto.empty()) texto.resize(texto.size() - quebra.size());
    return texto;
}

void TLinhasDoLog::SetCodificacao(TCodificacaoLog ACodificacao) {
    if (FCodificacao == ACodificacao) return;
    FCodificacao = ACodificacao;
    Refazer();
}

TTextoPronto TLinhasDoLog::BuscarTextoPronto() {
    while (FProntas < FLinhas.size()) Codificar(FLinhas[FProntas]);
    if (FLinhas.empty()) {
        // A line break alone, which no first line continues.
        if (FPronto.empty()) AcrescentarCodificado(FPronto, Plataforma::BuscarQuebraDeLinha(), FCodificacao);
        return {FPronto, FGeracao++};
    }
    return {FPronto, FGeracao};
}

void TLinhasDoLog::Refazer() noexcept {
    FPronto.clear();
    FProntas = 0;
    ++FGeracao;
}

void TLinhasDoLog::Codificar(std::u16string_view ALinha) {
    if (FProntas == 0) FPronto.clear();  // it may hold the text of a log without lines
    AcrescentarCodificado(FPronto, ALinha, FCodificacao);
    AcrescentarCodificado(FPronto, Plataforma::BuscarQuebraDeLinha(), FCodificacao);
    ++FProntas;
}

}  // namespace OryUtils
