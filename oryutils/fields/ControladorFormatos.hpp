#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <vector>

namespace OryUtils {

/// The formats that bound editors show dates, times and numbers by. They follow the process-wide formats, or else those
/// of the user's locale. Editors listen: when the formats are read anew they bring what they show up to date.
/// Belongs to the thread of the user interface.
class ORY_API TControladorFormatos {
public:
    using TOuvinte = TEvento<>;

    virtual ~TControladorFormatos() = default;

    /// Between BeginUpdate and EndUpdate, which nest, nobody is notified.
    virtual void BeginUpdate();
    virtual void EndUpdate();
    /// True: the formats are the process-wide ones. Takes effect at GetFormats.
    virtual void SetUsarFormatosDoProcesso(bool AUsar);
    bool GetUsarFormatosDoProcesso() const noexcept { return FUsarFormatosDoProcesso; }
    /// Takes the choice over, and reads the user's formats anew.
    virtual void GetFormats();
    /// Calls the listeners, in the order in which they came. Listeners may come and go meanwhile; one that comes is
    /// called from the next time on.
    virtual void NotifyListeners();

    /// The formats in force: those of the process as they are now, or those of the user as last read.
    const TFormatSettings& GetFormatos() const;

    void AdicionarOuvinte(const TOuvinte& AOuvinte);
    void RemoverOuvinte(const TOuvinte& AOuvinte);

private:
    TFormatSettings FDoUsuario;
    std::vector<TOuvinte> FOuvintes;
    int FAtualizacoes = 0;
    bool FUsarFormatosDoProcesso = true;
    bool FDoProcesso = true;
};

/// The controller of the process.
ORY_API TControladorFormatos& ControladorFormatos() noexcept;
/// Puts AControlador, which must outlive its use, in its place; null goes back to the library's own.
ORY_API void InstalarControladorFormatos(TControladorFormatos* AControlador) noexcept;

}  // namespace OryUtils
