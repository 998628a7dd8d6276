#pragma once

#include <map>
#include <string>

namespace OryUtils::Testes {

/// What this process holds of the system, by name: open descriptors on Linux; handles, GDI and USER objects on Windows.
using TRecursos = std::map<std::string, long>;
TRecursos BuscarRecursos();

/// Children that ended and were never asked for; 0 on Windows, where there are none.
long ContarFilhosMortos();

}  // namespace OryUtils::Testes
