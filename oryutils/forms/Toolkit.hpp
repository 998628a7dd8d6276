#pragma once

#include "oryutils/OryExport.hpp"

#include <string_view>

namespace OryUtils {

enum TTipoMensagem : int { tmAlerta, tmErro, tmInformacao };

/// What realises messages natively.
class TToolkit {
public:
    virtual ~TToolkit() = default;
    /// Shows a message and waits until the user has seen it.
    virtual void MostrarMensagem(TTipoMensagem ATipo, std::u16string_view ATitulo, std::u16string_view AMensagem) = 0;
    /// Lets the message loop run once.
    virtual void ProcessarMensagens() = 0;
};

/// The toolkit in use: the one that the host installed, else the console.
ORY_API TToolkit& BuscarToolkit();
/// Installs AToolkit, which must outlive its use; null goes back to the default.
ORY_API void InstalarToolkit(TToolkit* AToolkit);

}  // namespace OryUtils
