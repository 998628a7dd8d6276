#include "oryutils/system/UnOryUtilsSystemDadosProcesso.hpp"

#include <memory>

namespace OryUtils {

TProcessoItem& TProcessoItems::Add() {
    auto item = std::make_unique<TProcessoItem>();
    TProcessoItem& novo = *item;
    FItens.push_back(std::move(item));
    return novo;
}

TProcessoItem& TProcessoItems::GetItems(int AIndice) const {
    return static_cast<TProcessoItem&>(*FItens[ConferirIndice(AIndice)]);
}

void TProcessoItems::SetItems(int AIndice, const TProcessoItem& AValor) { GetItems(AIndice) = AValor; }

}  // namespace OryUtils
