#pragma once

#include <cstddef>

namespace OryUtils::Interno {

/// Memory for the children of a group, in blocks that grow with their number: asking the system for each node alone
/// takes longer than everything else that is done to it. A block goes with the last node in it, so each node may go on
/// its own and at any time.
struct TBlocoDeNos;

/// Room for a node of ATamanho bytes, in ABloco or, when that is null or full, in a new block that takes its place.
/// AQuantos  the children that the group has, all of them of that size.
void* TomarLugar(TBlocoDeNos*& ABloco, std::size_t ATamanho, std::size_t AQuantos);
/// Room for a node that is no child yet.
void* TomarLugarAvulso(std::size_t ATamanho);
/// Gives back what one of both answered.
void DevolverLugar(void* ALugar) noexcept;

/// The group takes no more places in ABloco, which may be null and becomes so.
void LargarBloco(TBlocoDeNos*& ABloco) noexcept;

}  // namespace OryUtils::Interno
