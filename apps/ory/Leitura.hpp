#pragma once

#include "Fluxos.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace Ory {

/// The bytes of an input that were read and not yet used.
class TBytesLidos {
public:
    explicit TBytesLidos(TEntrada& AEntrada) : FEntrada(AEntrada) {}

    /// Valid until the next LerMais.
    std::string_view Get() const noexcept { return std::string_view(FBytes).substr(FInicio); }
    /// Reads once more, at most AQuantos bytes; false at the end of the input.
    bool LerMais(std::size_t AQuantos);
    /// Takes the first AQuantos bytes away.
    void Usar(std::size_t AQuantos) noexcept { FInicio += AQuantos; }
    /// Takes the mark of UTF-8 (EF BB BF) away from the start of the input; true when it was there.
    bool PularMarcaUtf8();

    /// True when the input has ended; there may still be bytes to use.
    bool EstahNoFim() const noexcept { return FFim; }
    /// Bytes read from the input.
    std::uint64_t GetTotal() const noexcept { return FTotal; }
    /// AAcao is called before a read that has to wait for somebody to write.
    void AoEsperar(std::function<void()> AAcao) { FAoEsperar = std::move(AAcao); }

private:
    TEntrada& FEntrada;
    std::string FBytes{};
    std::size_t FInicio = 0;  // of what is not used yet
    std::uint64_t FTotal = 0;
    bool FFim = false;
    std::function<void()> FAoEsperar{};
};

/// Reads the lines of an input. They end at LF or CR LF; the last one may lack its end.
class TLeitorDeLinhas {
public:
    /// AMaior  the longest line accepted, in bytes.
    explicit TLeitorDeLinhas(TEntrada& AEntrada, std::size_t AMaior = std::string::npos)
        : FBytes(AEntrada), FMaior(AMaior) {}

    TBytesLidos& GetBytes() noexcept { return FBytes; }

    enum TLeitura { leLinha, leFim, leLonga };
    /// Goes to the next line. leLonga: it is longer than AMaior and was skipped.
    TLeitura Proxima();
    /// The line without its end. Valid until the next Proxima.
    std::string_view GetLinha() const noexcept { return FLinha; }

private:
    TBytesLidos FBytes;
    std::size_t FMaior;
    std::string_view FLinha{};
};

}  // namespace Ory
