#pragma once

#include <string>

namespace OryTypes {

/// Kind of a registry number. The ordinals are stored in databases and files: never renumber.
/// An ordinal without a name is legal; operations treat it as an unknown kind.
enum TTipoInscricao : int {
    tiNenhuma = 0,
    tiCNPJ = 1,
    tiCPF = 2,
    tiCEI = 3,
    tiPIS = 4,
    tiRG = 5,
    tiCNH = 6,
    tiCTPS = 7,
    tiTituloEleitor = 8,
    tiPassaporte = 9,
    tiCNO = 10,
};

/// Outcome of an operation that does not raise: starts as success without a message.
struct TResultStatus {
    bool Status = true;
    std::u16string Mensagem{};

    bool operator==(const TResultStatus&) const = default;
};

}  // namespace OryTypes
