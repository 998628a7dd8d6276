#pragma once

#include <utility>

namespace OryUtils::Interno {

/// A mark that is true for the time of a scope, and then what it was before: scopes may lie in each other.
class TLigado {
public:
    explicit TLigado(bool& AMarca) : FMarca(AMarca), FAnterior(std::exchange(AMarca, true)) {}
    ~TLigado() { FMarca = FAnterior; }
    TLigado(const TLigado&) = delete;
    TLigado& operator=(const TLigado&) = delete;

private:
    bool& FMarca;
    bool FAnterior;
};

}  // namespace OryUtils::Interno
