#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/platform/AlcaDeProcesso.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/ListaDeObjetos.hpp"

#include <cstdint>
#include <string>

namespace OryUtils {

/// One process of a list. A copy keeps a handle of its own.
struct TProcessoItem : TObjeto {
    std::u16string Usuario{};           ///< account that owns the process, without its domain; empty when not told
    std::u16string Processo{};          ///< file name of the executable
    TAlcaDeProcesso EnderecoMemoria{};  ///< open as long as the item lives; none when the system refuses it
    std::u16string Caminho{};           ///< full path of the executable; empty when not told
    std::uint32_t IDProcesso = 0;
    std::uint64_t MemoriaUsada = 0;  ///< bytes
};

/// A list of processes; owns its items.
class ORY_API TProcessoItems : public TListaDeObjetos {
public:
    /// Appends an empty item and answers it.
    TProcessoItem& Add();
    /// The item of that number, from 0. Raises EListError when there is none.
    TProcessoItem& GetItems(int AIndice) const;
    /// Copies AValor into that item. Raises EListError when there is none.
    void SetItems(int AIndice, const TProcessoItem& AValor);
    TProcessoItem& operator[](int AIndice) const { return GetItems(AIndice); }
};

}  // namespace OryUtils
