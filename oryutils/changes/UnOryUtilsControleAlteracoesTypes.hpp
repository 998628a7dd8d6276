#pragma once

#include "oryutils/runtime/MetodoAnonimo.hpp"

namespace OryUtils {

/// One change step: a counted closure without arguments. It raises to report a failure.
using TMetodoControleAlteracao = TMetodoAnonimo<>;

}  // namespace OryUtils
