#pragma once

// The room of this header is now another; its old path stays.
#include "oryutils/fields/Campos.hpp"
