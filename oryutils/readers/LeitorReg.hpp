#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// What a line of an exported registry file says; a value in hexadecimal may go on over several lines.
enum TElementoReg : int {
    elChave,          // [HKEY_LOCAL_MACHINE\Software]
    elChaveApagada,   // [-HKEY_LOCAL_MACHINE\Software]
    elChaveIlegivel,  // a line in brackets that names no key: the values below it belong to none
    elValor,          // "name"=..., @=...
    elValorApagado,   // "name"=-
    elLinhaEmBranco,
    elOutraLinha,  // a comment, or what makes no sense
};

/// One element and where it stands in the text.
struct TLinhaReg {
    TElementoReg Elemento = elOutraLinha;
    std::size_t Inicio = 0, Fim = 0;          // the lines, the end of the last one included
    std::u16string_view Nome{};               // path of a key; name of a value, its escapes as they are
    std::size_t InicioDado = 0, FimDado = 0;  // of a value, what stands behind the sign of equality
};

/// Walks the lines of such a file from APosicao on. Trusts nothing: what is not exactly of the format comes as
/// elOutraLinha. Allocates nothing; the whole walk costs time linear in the text.
class TLeitorReg {
public:
    explicit TLeitorReg(std::u16string_view ATexto, std::size_t APosicao = 0) : FTexto(ATexto), FPosicao(APosicao) {}
    /// False at the end of the text.
    bool Ler(TLinhaReg& ALinha) noexcept;

private:
    std::u16string_view FTexto;
    std::size_t FPosicao;
};

/// A quoted text without its quotes and escapes.
std::u16string RetirarEscapes(std::u16string_view ATexto);
/// True when ATexto with escapes says ANome, ignoring case.
bool EscapadoDizNome(std::u16string_view ATexto, std::u16string_view ANome) noexcept;

}  // namespace OryUtils::Interno
