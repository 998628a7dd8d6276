#include "toolkits/qt/interno/TeclasQt.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {
namespace {

struct TParTecla {
    int Qt;
    std::uint16_t Codigo;
};

// clang-format off
constexpr std::array CTeclas{
    TParTecla{Qt::Key_Backspace, 8},  TParTecla{Qt::Key_Tab, 9},         TParTecla{Qt::Key_Backtab, 9},
    TParTecla{Qt::Key_Return, 13},    TParTecla{Qt::Key_Enter, 13},      TParTecla{Qt::Key_Shift, 16},
    TParTecla{Qt::Key_Control, 17},   TParTecla{Qt::Key_Alt, 18},        TParTecla{Qt::Key_Pause, 19},
    TParTecla{Qt::Key_CapsLock, 20},  TParTecla{Qt::Key_Escape, 27},     TParTecla{Qt::Key_Space, 32},
    TParTecla{Qt::Key_PageUp, 33},    TParTecla{Qt::Key_PageDown, 34},   TParTecla{Qt::Key_End, 35},
    TParTecla{Qt::Key_Home, 36},      TParTecla{Qt::Key_Left, 37},       TParTecla{Qt::Key_Up, 38},
    TParTecla{Qt::Key_Right, 39},     TParTecla{Qt::Key_Down, 40},       TParTecla{Qt::Key_Print, 44},
    TParTecla{Qt::Key_Insert, 45},    TParTecla{Qt::Key_Delete, 46},     TParTecla{Qt::Key_Meta, 91},
    TParTecla{Qt::Key_Menu, 93},      TParTecla{Qt::Key_NumLock, 144},   TParTecla{Qt::Key_ScrollLock, 145},
    TParTecla{Qt::Key_Semicolon, 186},    TParTecla{Qt::Key_Equal, 187},     TParTecla{Qt::Key_Comma, 188},
    TParTecla{Qt::Key_Minus, 189},        TParTecla{Qt::Key_Period, 190},    TParTecla{Qt::Key_Slash, 191},
    TParTecla{Qt::Key_QuoteLeft, 192},    TParTecla{Qt::Key_BracketLeft, 219},
    TParTecla{Qt::Key_Backslash, 220},    TParTecla{Qt::Key_BracketRight, 221},
    TParTecla{Qt::Key_Apostrophe, 222},
};
// The same keys on the numeric block have numbers of their own.
constexpr std::array CTeclasDoBloco{
    TParTecla{Qt::Key_Asterisk, 106}, TParTecla{Qt::Key_Plus, 107},   TParTecla{Qt::Key_Comma, 110},
    TParTecla{Qt::Key_Minus, 109},    TParTecla{Qt::Key_Period, 110}, TParTecla{Qt::Key_Slash, 111},
};
// clang-format on

template <typename TTabela>
std::uint16_t Procurar(const TTabela& ATabela, int ATecla) noexcept {
    const auto achada =
        std::find_if(ATabela.begin(), ATabela.end(), [&](const TParTecla& t) { return t.Qt == ATecla; });
    return achada == ATabela.end() ? std::uint16_t{0} : achada->Codigo;
}

std::uint16_t BuscarCodigo(int ATecla, bool ABloco) noexcept {
    if (ATecla >= Qt::Key_0 && ATecla <= Qt::Key_9)
        return static_cast<std::uint16_t>((ABloco ? 96 : 48) + ATecla - Qt::Key_0);
    if (ATecla >= Qt::Key_A && ATecla <= Qt::Key_Z) return static_cast<std::uint16_t>(65 + ATecla - Qt::Key_A);
    if (ATecla >= Qt::Key_F1 && ATecla <= Qt::Key_F24) return static_cast<std::uint16_t>(112 + ATecla - Qt::Key_F1);
    if (ABloco)
        if (const auto codigo = Procurar(CTeclasDoBloco, ATecla)) return codigo;
    return Procurar(CTeclas, ATecla);
}

}  // namespace

TTecla DeEventoQt(const QKeyEvent& AEvento) noexcept {
    const Qt::KeyboardModifiers modificadores = AEvento.modifiers();
    return {.Codigo = BuscarCodigo(AEvento.key(), modificadores.testFlag(Qt::KeypadModifier)),
            .Shift = modificadores.testFlag(Qt::ShiftModifier),
            .Ctrl = modificadores.testFlag(Qt::ControlModifier),
            .Alt = modificadores.testFlag(Qt::AltModifier)};
}

}  // namespace OryUtils
