#pragma once

#include "oryutils/runtime/Excecoes.hpp"

#include <string>

namespace Testes {

/// The message of the TErro that AAcao raises; "no error" when it raises none.
template <typename TErro = OryUtils::EConvertError>
std::string MensagemDe(const auto& AAcao) {
    try {
        AAcao();
    } catch (const TErro& erro) {
        return erro.what();
    }
    return "no error";
}

}  // namespace Testes
