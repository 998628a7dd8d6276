#pragma once

#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// Fills in the store's current version; it comes in empty.
using TEventoBuscarVersaoAlteracao = TEvento<TObjeto* /*ASender*/, std::u16string& /*AVersaoAlteracao*/>;

/// A change for that version has just run without error; typically the version is recorded now.
using TEventoExecutarMetodoAlteracao = TEvento<TObjeto* /*ASender*/, std::u16string_view /*AVersaoAlteracao*/>;

/// A progress or error text.
using TEventoStatusExecucao = TEvento<TObjeto* /*ASender*/, std::u16string_view /*AStatus*/>;

}  // namespace OryUtils
