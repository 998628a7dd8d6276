#pragma once

// The header moved to another room; this path stays for callers.
#include "oryutils/fields/Campos.hpp"
