#pragma once

#include <string>

/// What the test program needs of each system.
namespace Sistema {

/// Standard output takes bytes as they are.
void PrepararSaida();
/// Starts this program again with AArgumento, in possession of the same output, and does not wait for it.
void GerarHerdeiro(const std::string& AArgumento);
/// Returns when the process that started this one has ended.
void EsperarPai();
void EsperarUmPouco();
/// Ends this process at once, as another one would.
[[noreturn]] void Morrer();

}  // namespace Sistema
