#pragma once

#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/MemoriaDeTexto.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Where the lines of a command's output go.
class TDestinoDaSaida {
public:
    virtual ~TDestinoDaSaida() = default;
    /// Goes on with the last line, or begins the first one.
    virtual void Continuar(std::u16string_view ATexto) = 0;
    virtual void NovaLinha(std::u16string_view ATexto) = 0;
    /// A chunk of which nothing was left.
    virtual void ParteVazia() = 0;
    /// Chunks, all but the last one whole, that are ASCII without zero bytes, not trimmed yet, at most
    /// TSaidaDeComando::CTamanhoDoGrupo bytes: does with each what the others do. AQuebrasInteiras: inside them every
    /// line break is CR LF.
    virtual void ContinuarAscii(std::string_view APartes, bool AQuebrasInteiras) = 0;
};

/// Goes on with the lines of a list, which must outlive this.
class TSaidaEmLista final : public TDestinoDaSaida {
public:
    explicit TSaidaEmLista(std::vector<std::u16string>& ALinhas) : FLinhas(ALinhas) {}
    void Continuar(std::u16string_view ATexto) override;
    void NovaLinha(std::u16string_view ATexto) override;
    void ParteVazia() override;
    void ContinuarAscii(std::string_view APartes, bool AQuebrasInteiras) override;

private:
    void Abrir();

    std::vector<std::u16string>& FLinhas;
    bool FAberta = false;  // line breaks inside the caller's items have become lines
};

/// One text, with CR LF between the lines.
class TSaidaEmTexto final : public TDestinoDaSaida {
public:
    explicit TSaidaEmTexto(std::u16string& ATexto) : FTexto(ATexto) {}
    void Continuar(std::u16string_view ATexto) override;
    void NovaLinha(std::u16string_view ATexto) override { FTexto.append(u"\r\n").append(ATexto); }
    void ParteVazia() override {}
    void ContinuarAscii(std::string_view APartes, bool AQuebrasInteiras) override;

private:
    std::u16string& FTexto;
    Interno::TMemoriaDeTexto<std::u16string> FMemoria{Interno::BuscarReservaDeTextoLongo()};
};

/// What a command prints, taken in chunks of 255 bytes. Each chunk ends at its first zero byte, is turned into text by
/// itself and trimmed; the list's text, its lines with CR LF between them, becomes the old text followed by the chunk.
/// The text is never put together again for that: all chunks cost time linear in their bytes.
class TSaidaDeComando {
public:
    /// Bytes taken at once.
    static constexpr std::size_t CTamanhoDaParte = 255;
    /// Bytes of the whole chunks that are looked at together.
    static constexpr std::size_t CTamanhoDoGrupo = 16 * CTamanhoDaParte;
    using TDecodificador = std::function<std::u16string(std::string_view)>;

    /// ADecodificador reads the chunks that are not plain ASCII.
    TSaidaDeComando(TDestinoDaSaida& ADestino, TDecodificador ADecodificador);

    /// Takes the whole chunks of what is left from before and ABytes; the rest is kept for what comes next.
    void Receber(std::string_view ABytes);
    /// The producer has paused or ended: what was kept is a chunk of its own.
    void FecharParte();

private:
    void ReceberGrupo(std::string_view APartes);
    void ReceberParte(std::string_view ABytes);

    TDestinoDaSaida& FDestino;
    TDecodificador FDecodificador;
    std::string FResto;
};

/// The lines of what a command printed at once, its bytes being UTF-8.
std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes);

}  // namespace OryUtils::Interno
