#include "oryutils/text/interno/Busca.hpp"

#include "oryutils/characters/Caixa.hpp"

#include <utility>

namespace OryUtils::Interno {

TAutomato::TAutomato(std::u16string APadrao) : FPadrao(std::move(APadrao)), FRecuos(FPadrao.size() + 1, 0) {
    for (std::size_t i = 1; i < FPadrao.size(); ++i) FRecuos[i + 1] = Avancar(FRecuos[i], FPadrao[i]);
}

std::size_t TAutomato::Avancar(std::size_t AEstado, char16_t ACaractere) const {
    while (AEstado == FPadrao.size() || FPadrao[AEstado] != ACaractere) {
        if (AEstado == 0) return 0;
        AEstado = FRecuos[AEstado];
    }
    return AEstado + 1;
}

TOcorrencias::TOcorrencias(std::u16string_view ATexto, std::u16string_view APadrao, bool AIgnorarCaixa)
    : FTexto(ATexto),
      FAutomato(AIgnorarCaixa ? MinusculaDe(APadrao) : std::u16string(APadrao)),
      FIgnorarCaixa(AIgnorarCaixa) {}

std::size_t TOcorrencias::Proxima() {
    const std::size_t tamanho = FAutomato.GetTamanho();
    if (tamanho == 0) return CNaoEncontrado;
    while (FPosicao < FTexto.size()) {
        const char16_t c = FTexto[FPosicao++];
        FEstado = FAutomato.Avancar(FEstado, FIgnorarCaixa ? MinusculaDe(c) : c);
        if (FEstado == tamanho) return FPosicao - tamanho;
    }
    return CNaoEncontrado;
}

void TOcorrencias::SaltarUltima() { FEstado = 0; }

std::size_t Localizar(std::u16string_view ATexto, std::u16string_view APadrao, bool AIgnorarCaixa) {
    return TOcorrencias(ATexto, APadrao, AIgnorarCaixa).Proxima();
}

std::u16string SubstituirTodos(std::u16string_view ATexto, std::u16string_view AAntigo, std::u16string_view ANovo,
                               bool AIgnorarCaixa) {
    TOcorrencias ocorrencias(ATexto, AAntigo, AIgnorarCaixa);
    std::u16string resultado;
    std::size_t inicio = 0;
    for (std::size_t p = ocorrencias.Proxima(); p != CNaoEncontrado; p = ocorrencias.Proxima()) {
        resultado.append(ATexto, inicio, p - inicio).append(ANovo);
        inicio = p + AAntigo.size();
        ocorrencias.SaltarUltima();
    }
    return resultado.append(ATexto.substr(inicio));
}

}  // namespace OryUtils::Interno
