#pragma once

#include "oryutils/platform/Processos.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <cstddef>
#include <functional>
#include <map>
#include <vector>

namespace OryUtils::Interno {

/// The names of an account, as the system tells them; both empty when it does not.
TDonoDeProcesso ConsultarConta(PSID AConta);

/// Names of accounts. Each account is asked for once: the answer of a domain takes its time.
class TContas {
public:
    using TConsulta = std::function<TDonoDeProcesso(PSID)>;
    explicit TContas(TConsulta AConsulta = ConsultarConta) : FConsulta(std::move(AConsulta)) {}

    const TDonoDeProcesso& Buscar(PSID AConta) {
        const auto* const bytes = static_cast<const std::byte*>(AConta);
        const auto [dono, nova] = FDonos.try_emplace({bytes, bytes + ::GetLengthSid(AConta)});
        if (nova) dono->second = FConsulta(AConta);
        return dono->second;
    }

private:
    TConsulta FConsulta;
    std::map<std::vector<std::byte>, TDonoDeProcesso> FDonos{};
};

}  // namespace OryUtils::Interno
