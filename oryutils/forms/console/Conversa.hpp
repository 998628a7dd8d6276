#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/platform/Console.hpp"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

/// The terminal as the console toolkit sees it, with its clock. Tests put a written dialogue in its place.
class TConversa {
public:
    virtual ~TConversa() = default;
    virtual bool PodeConversar() = 0;
    virtual void Escrever(std::u16string_view ATexto) = 0;
    /// How many characters stand in a line; 0 when nobody knows.
    virtual int GetColunas() { return 0; }
    /// As Interno::LerLinhaDoTerminal.
    virtual Interno::TLeituraDeLinha LerLinha(std::optional<std::chrono::milliseconds> ALimite,
                                              std::u16string& ALinha) = 0;
    /// Whether the terminal shows what is typed; it does at first.
    virtual void MostrarDigitado(bool) {}
    /// Time of a clock that never goes back.
    virtual std::chrono::milliseconds GetInstante() = 0;
};

/// stdin, stderr and the clock of this process.
ORY_API TConversa& BuscarConversaDoSistema();

}  // namespace OryUtils
