#include "oryutils/files/interno/LinhasDoLog.hpp"

#include "oryutils/files/interno/CodificacaoDoLog.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <utility>

namespace OryUtils {
namespace {

/// The system's line break, whose bytes are the same in every encoding.
std::string_view BuscarQuebra() { return Interno::BuscarQuebraDeLinha().size() == 1 ? "\n" : "\r\n"; }

}  // namespace

void TLinhasDoLog::Adicionar(std::u16string_view ALinha) {
    std::string bytes;
    const bool temTodos = AcrescentarCodificado(bytes, ALinha, FCodificacao);
    if (!temTodos || bytes.find(BuscarQuebra()) != bytes.npos) {
        auto original = temTodos ? nullptr : std::make_unique<std::u16string>(ALinha);
        FEspeciais[FPronto.size()] = {bytes.size(), std::move(original)};
    }
    AdicionarBytes(bytes);
}

void TLinhasDoLog::AdicionarBytes(std::string_view ALinha) {
    const std::size_t inicio = FPronto.size();
    try {
        FPronto.append(ALinha).append(BuscarQuebra());
    } catch (...) {
        FPronto.resize(inicio);
        FEspeciais.erase(inicio);
        throw;
    }
    ++FQuantidade;
}

void TLinhasDoLog::Inserir(std::size_t AIndice, std::u16string_view ALinha) {
    if (AIndice == FQuantidade) return Adicionar(ALinha);
    std::size_t inicio = 0;
    for (std::size_t i = 0; i < AIndice; ++i) inicio = BuscarProxima(inicio);
    TLinhasDoLog uma;
    uma.FCodificacao = FCodificacao;
    uma.Adicionar(ALinha);
    FPronto.insert(inicio, uma.FPronto);
    MoverEspeciais(inicio, uma.FPronto.size());
    if (!uma.FEspeciais.empty()) FEspeciais[inicio] = std::move(uma.FEspeciais.begin()->second);
    ++FQuantidade;
    ++FGeracao;
}

void TLinhasDoLog::Limpar() {
    std::string().swap(FPronto);  // gives its memory back
    FQuantidade = 0;
    FEspeciais.clear();
    ++FGeracao;
}

void TLinhasDoLog::ColocarAntes(TLinhasCarregadas&& ALinhas) {
    const std::size_t tamanho = ALinhas.Bytes.size();
    ALinhas.Bytes += FPronto;
    FPronto = std::move(ALinhas.Bytes);
    MoverEspeciais(0, tamanho);
    FQuantidade += ALinhas.Quantidade;
    ++FGeracao;
}

TLinhasDoLog::TLinha TLinhasDoLog::BuscarLinha(std::size_t AInicio) const {
    const std::string_view resto = std::string_view(FPronto).substr(AInicio);
    const auto especial = FEspeciais.find(AInicio);
    if (especial == FEspeciais.end()) return {resto.substr(0, resto.find(BuscarQuebra())), nullptr};
    return {resto.substr(0, especial->second.Tamanho), especial->second.Original.get()};
}

std::size_t TLinhasDoLog::BuscarProxima(std::size_t AInicio) const {
    return AInicio + BuscarLinha(AInicio).Bytes.size() + BuscarQuebra().size();
}

void TLinhasDoLog::MoverEspeciais(std::size_t ADe, std::size_t AQuanto) {
    std::map<std::size_t, TEspecial> movidos;
    for (auto& [inicio, especial] : FEspeciais)
        movidos.emplace_hint(movidos.end(), inicio < ADe ? inicio : inicio + AQuanto, std::move(especial));
    FEspeciais = std::move(movidos);
}

std::u16string TLinhasDoLog::GetTexto() const {
    const std::u16string_view quebra = Interno::BuscarQuebraDeLinha();
    std::u16string texto;
    texto.reserve(FPronto.size());
    for (std::size_t inicio = 0; inicio < FPronto.size(); inicio = BuscarProxima(inicio)) {
        const TLinha linha = BuscarLinha(inicio);
        if (linha.Original)
            texto += *linha.Original;
        else
            AcrescentarDecodificado(texto, linha.Bytes, FCodificacao);
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
    std::u16string texto;
    for (std::size_t inicio = 0; inicio < FPronto.size(); inicio = BuscarProxima(inicio)) {
        const TLinha linha = BuscarLinha(inicio);
        texto.clear();
        if (linha.Original)
            outras.Adicionar(*linha.Original);
        else if (AcrescentarDecodificado(texto, linha.Bytes, FCodificacao))
            outras.Adicionar(texto);
        else
            outras.AdicionarBytes(linha.Bytes);
    }
    *this = std::move(outras);
}

TTextoPronto TLinhasDoLog::BuscarTextoPronto() {
    if (FQuantidade > 0) return {FPronto, FGeracao};
    return {BuscarQuebra(), FGeracao++};  // a line break alone, which no first line continues
}

}  // namespace OryUtils
