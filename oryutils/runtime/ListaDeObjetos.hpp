#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace OryUtils {

/// A list that owns its objects: it frees them when it is cleared and when it goes.
class ORY_API TListaDeObjetos : public TObjeto {
public:
    TListaDeObjetos() = default;
    TListaDeObjetos(const TListaDeObjetos&) = delete;
    TListaDeObjetos& operator=(const TListaDeObjetos&) = delete;

    int GetCount() const noexcept { return static_cast<int>(FItens.size()); }
    virtual void Clear() { FItens.clear(); }

protected:
    /// Raises EListError when AIndice is not 0 up to the count less one.
    std::size_t ConferirIndice(int AIndice) const {
        const auto indice = static_cast<std::size_t>(AIndice);
        if (indice >= FItens.size()) RecusarIndice(AIndice);
        return indice;
    }

    std::vector<std::unique_ptr<TObjeto>> FItens{};

private:
    [[noreturn]] static void RecusarIndice(int AIndice);
};

}  // namespace OryUtils
