#pragma once

#include "Fluxos.hpp"
#include "conferir/Csv.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Ory {

struct TLimites {
    // Bytes read before a block is handed on: few enough to be still in the cache of the one who works on it.
    std::size_t Bloco = std::size_t{256} << 10;
    std::size_t Registro = std::size_t{16} << 20;  // the longest record accepted
};

/// Reads the input in blocks of whole records.
class TLeitorDeBlocos {
public:
    TLeitorDeBlocos(TEntrada& AEntrada, TLimites ALimites) : FEntrada(AEntrada), FLimites(ALimites) {}

    /// The first bytes of the input, as many as a block, without a mark of UTF-8 (EF BB BF). Before the first Ler.
    /// Raises EFalha when the mark is one of UTF-16.
    std::string_view EspiarInicio();
    bool PossuiMarcaUtf8() const noexcept { return FPossuiMarcaUtf8; }

    enum TLeitura { leBloco, leFim, leAspasAbertas, leRegistroLongo };
    /// Puts the next whole records in ABloco. leFim: there are no more. The other two: the record after those given so
    /// far never closes its quotes, or is longer than the limit.
    TLeitura Ler(std::string& ABloco, TCortadorDeRegistros& ACortador);
    /// The same for plain lines, which end at every LF.
    TLeitura LerLinhas(std::string& ABloco);

    /// Bytes taken from the input.
    std::uint64_t GetBytesLidos() const noexcept { return FBytesLidos; }
    /// True when nothing is left behind the last block.
    bool EstahNoFim() const noexcept { return FFimDaEntrada && FSobra.empty(); }

private:
    template <typename TCortar>
    TLeitura LerCortando(std::string& ABloco, TCortar ACortar);
    void Encher(std::string& ADestino, std::size_t AQuantidade);

    TEntrada& FEntrada;
    TLimites FLimites;
    std::string FSobra{};      // read, not yet given
    std::size_t FVarrido = 0;  // of it, already seen by the cutter
    std::uint64_t FBytesLidos = 0;
    bool FFimDaEntrada = false;
    bool FPossuiMarcaUtf8 = false;
};

}  // namespace Ory
