#pragma once

#include "oryutils/platform/Memoria.hpp"

#include <algorithm>
#include <cstddef>
#include <new>

namespace OryUtils::Interno {

/// Looks after the memory of one long text that only grows, whose every new page would otherwise cost more than the
/// characters in it: it seldom moves, and its pages are asked for many at once.
template <typename TTexto>
class TMemoriaDeTexto {
public:
    /// AReserva: the bytes that a text of more than a megabyte asks for at least.
    explicit TMemoriaDeTexto(std::size_t AReserva = 0) : FReserva(AReserva / CLetra) {}

    /// AMais characters are about to be appended to ATexto, always the same one. A short text is left as it is.
    void Preparar(TTexto& ATexto, std::size_t AMais) {
        const std::size_t tamanho = ATexto.size() + AMais;
        if (tamanho <= FPreparado || tamanho < CPasso) return;
        if (tamanho > ATexto.capacity() && !Mudar(ATexto, tamanho)) return;
        FPreparado = std::min(ATexto.capacity(), tamanho + CPasso);
        PrepararEscrita(ATexto.data() + ATexto.size(), (FPreparado - ATexto.size()) * CLetra);
    }

private:
    static constexpr std::size_t CLetra = sizeof(typename TTexto::value_type);
    static constexpr std::size_t CPasso = std::size_t{128} * 1024 / CLetra;
    static constexpr std::size_t CMegabyte = (std::size_t{1} << 20) / CLetra;

    bool Mudar(TTexto& ATexto, std::size_t ATamanho) {
        TTexto maior;
        try {
            const std::size_t pedido = ATamanho * BuscarFatorDeCrescimento();
            maior.reserve(ATamanho > CMegabyte ? std::max(pedido, FReserva) : pedido);
        } catch (const std::bad_alloc&) {
            return false;  // it grows as far as it needs to
        }
        PrepararEscrita(maior.data(), ATexto.size() * CLetra);
        maior.append(ATexto);
        ATexto.swap(maior);
        return true;
    }

    std::size_t FReserva;
    std::size_t FPreparado = 0;  // so far the text's memory has been asked for
};

}  // namespace OryUtils::Interno
