#pragma once

namespace OryUtils::Interno {

/// A mark that is true for the time of a scope.
class TLigado {
public:
    explicit TLigado(bool& AMarca) : FMarca(AMarca) { FMarca = true; }
    ~TLigado() { FMarca = false; }
    TLigado(const TLigado&) = delete;
    TLigado& operator=(const TLigado&) = delete;

private:
    bool& FMarca;
};

}  // namespace OryUtils::Interno
