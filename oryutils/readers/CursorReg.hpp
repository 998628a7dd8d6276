#pragma once

#include <string_view>

namespace OryUtils::Interno {

/// A place in the text of an exported registry file. What an operation reads lies behind it afterwards.
class TCursorReg {
public:
    explicit TCursorReg(std::u16string_view ATexto) noexcept : FResto(ATexto) {}

    bool Acabou() const noexcept { return FResto.empty(); }
    /// The character at the cursor; a line end at the end of the text.
    char16_t Ver() const noexcept { return Acabou() ? u'\n' : FResto.front(); }
    bool EstahNoFimDaLinha() const noexcept { return Ver() == u'\r' || Ver() == u'\n'; }
    /// True when only blanks and a comment follow on the line.
    bool SoRestaComentario() const noexcept {
        TCursorReg depois = *this;
        depois.PularEspacos();
        return depois.EstahNoFimDaLinha() || depois.Ver() == u';';
    }

    void Avancar() noexcept { FResto.remove_prefix(1); }
    void PularEspacos() noexcept {
        while (Ver() == u' ' || Ver() == u'\t') Avancar();
    }
    /// Reads ATexto; false, without moving, when something else stands there.
    bool Aceitar(std::u16string_view ATexto) noexcept {
        if (!FResto.starts_with(ATexto)) return false;
        FResto.remove_prefix(ATexto.size());
        return true;
    }
    /// Reads the rest of the line, its end (CR LF, CR or LF) included. Gives it without that end.
    std::u16string_view LerLinha() noexcept {
        const std::u16string_view linha = FResto.substr(0, FResto.find_first_of(u"\r\n"));
        FResto.remove_prefix(linha.size());
        if (!Aceitar(u"\r\n") && !Acabou()) Avancar();
        return linha;
    }

private:
    std::u16string_view FResto;
};

}  // namespace OryUtils::Interno
