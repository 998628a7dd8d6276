#pragma once

#include "oryutils/forms/Toolkit.hpp"

namespace OryUtils {

/// For batches and remote shells: a message is a line on stderr, "Aviso: CNPJ inválido. Verifique.".
class ORY_API TToolkitConsole final : public TToolkit {
public:
    void MostrarMensagem(TTipoMensagem ATipo, std::u16string_view ATitulo, std::u16string_view AMensagem) override;
    void ProcessarMensagens() override {}
};

}  // namespace OryUtils
