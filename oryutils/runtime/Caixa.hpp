#pragma once

// Names of the system are compared below this room; the upper rooms find upper and lower case here.
#include "oryutils/characters/Caixa.hpp"
