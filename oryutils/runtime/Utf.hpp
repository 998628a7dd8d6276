#pragma once

// The system's texts are converted below this room; the upper rooms find the conversions here.
#include "oryutils/characters/Utf.hpp"
