#include "oryutils/sql/interno/BlocoDeNos.hpp"

#include <algorithm>
#include <new>

namespace OryUtils::Interno {

struct alignas(std::max_align_t) TBlocoDeNos {
    std::size_t Usos;    // its nodes, and the group that still takes places in it
    std::byte* Proximo;  // the first free place
    std::byte* Fim;
};

namespace {

/// Stands before each node.
struct alignas(std::max_align_t) TCabecalho {
    TBlocoDeNos* Bloco;  // null when the node stands alone
};

void DescontarUso(TBlocoDeNos* ABloco) noexcept {
    if (--ABloco->Usos == 0) ::operator delete(ABloco);
}

/// A lone child is common in deep trees, and a second one has brothers.
std::size_t CalcularLugares(std::size_t AQuantos) noexcept {
    constexpr std::size_t CMaisLugares = 64;
    return AQuantos == 0 ? 1 : std::min(2 * AQuantos + 2, CMaisLugares);
}

TBlocoDeNos* CriarBloco(std::size_t ABytes) {
    auto* memoria = static_cast<std::byte*>(::operator new(sizeof(TBlocoDeNos) + ABytes));
    std::byte* lugares = memoria + sizeof(TBlocoDeNos);
    return ::new (memoria) TBlocoDeNos{1, lugares, lugares + ABytes};
}

}  // namespace

void* TomarLugar(TBlocoDeNos*& ABloco, std::size_t ATamanho, std::size_t AQuantos) {
    constexpr std::size_t CAlinhamento = alignof(TCabecalho);
    const std::size_t passo = sizeof(TCabecalho) + (ATamanho + CAlinhamento - 1) / CAlinhamento * CAlinhamento;
    if (ABloco && ABloco->Proximo == ABloco->Fim) LargarBloco(ABloco);
    if (!ABloco) ABloco = CriarBloco(CalcularLugares(AQuantos) * passo);
    auto* cabecalho = ::new (ABloco->Proximo) TCabecalho{ABloco};
    ABloco->Proximo += passo;
    ++ABloco->Usos;
    return cabecalho + 1;
}

void* TomarLugarAvulso(std::size_t ATamanho) {
    return ::new (::operator new(sizeof(TCabecalho) + ATamanho)) TCabecalho{nullptr} + 1;
}

void DevolverLugar(void* ALugar) noexcept {
    if (!ALugar) return;
    TCabecalho* cabecalho = static_cast<TCabecalho*>(ALugar) - 1;
    if (cabecalho->Bloco)
        DescontarUso(cabecalho->Bloco);
    else
        ::operator delete(cabecalho);
}

void LargarBloco(TBlocoDeNos*& ABloco) noexcept {
    if (ABloco) DescontarUso(ABloco);
    ABloco = nullptr;
}

}  // namespace OryUtils::Interno
