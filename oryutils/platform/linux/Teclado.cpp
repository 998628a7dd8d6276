#include "oryutils/platform/Teclado.hpp"

#include "oryutils/platform/linux/TecladoX.hpp"

#include <X11/keysym.h>

#include <algorithm>
#include <array>

namespace OryUtils::Interno {
namespace {

struct TCaractereFixo {
    std::uint16_t Tecla;
    char16_t Caractere;
};
// Keys that give the same character in every layout and state, besides the digits of the keypad.
constexpr std::array CCaracteresFixos{
    TCaractereFixo{0x08, u'\b'}, TCaractereFixo{0x09, u'\t'}, TCaractereFixo{0x0D, u'\r'},
    TCaractereFixo{0x1B, 0x1B},  TCaractereFixo{0x20, u' '},  TCaractereFixo{0x6A, u'*'},
    TCaractereFixo{0x6B, u'+'},  TCaractereFixo{0x6D, u'-'},  TCaractereFixo{0x6F, u'/'},
};

struct TTeclaFisica {
    std::uint16_t Tecla;
    std::uint8_t Codigo;  // of the X server: the scan code of the key plus 8
};
// Punctuation stands where the layout puts it: Windows numbers these keys by place.
constexpr std::array CTeclasFisicas{
    TTeclaFisica{0xBA, 47}, TTeclaFisica{0xBB, 21}, TTeclaFisica{0xBC, 59}, TTeclaFisica{0xBD, 20},
    TTeclaFisica{0xBE, 60}, TTeclaFisica{0xBF, 61}, TTeclaFisica{0xC0, 49}, TTeclaFisica{0xC1, 97},
    TTeclaFisica{0xDB, 34}, TTeclaFisica{0xDC, 51}, TTeclaFisica{0xDD, 35}, TTeclaFisica{0xDE, 48},
    TTeclaFisica{0xE2, 94},
};

struct TTeclaNomeada {
    std::uint16_t Tecla;
    xcb_keysym_t Keysym;
    xcb_keysym_t Outra;  // the second key of that number: the right one, or the keypad's
};
// Keys that write nothing, and those of the keypad, are found by their names.
constexpr std::array CTeclasNomeadas{
    TTeclaNomeada{0x08, XK_BackSpace, 0},
    TTeclaNomeada{0x09, XK_Tab, 0},
    TTeclaNomeada{0x0C, XK_Clear, 0},
    TTeclaNomeada{0x0D, XK_Return, XK_KP_Enter},
    TTeclaNomeada{0x10, XK_Shift_L, XK_Shift_R},
    TTeclaNomeada{0x11, XK_Control_L, XK_Control_R},
    TTeclaNomeada{0x12, XK_Alt_L, XK_Alt_R},
    TTeclaNomeada{0x13, XK_Pause, 0},
    TTeclaNomeada{0x14, XK_Caps_Lock, 0},
    TTeclaNomeada{0x1B, XK_Escape, 0},
    TTeclaNomeada{0x20, XK_space, 0},
    TTeclaNomeada{0x21, XK_Prior, 0},
    TTeclaNomeada{0x22, XK_Next, 0},
    TTeclaNomeada{0x23, XK_End, 0},
    TTeclaNomeada{0x24, XK_Home, 0},
    TTeclaNomeada{0x25, XK_Left, 0},
    TTeclaNomeada{0x26, XK_Up, 0},
    TTeclaNomeada{0x27, XK_Right, 0},
    TTeclaNomeada{0x28, XK_Down, 0},
    TTeclaNomeada{0x2C, XK_Print, 0},
    TTeclaNomeada{0x2D, XK_Insert, 0},
    TTeclaNomeada{0x2E, XK_Delete, 0},
    TTeclaNomeada{0x5B, XK_Super_L, 0},
    TTeclaNomeada{0x5C, XK_Super_R, 0},
    TTeclaNomeada{0x5D, XK_Menu, 0},
    TTeclaNomeada{0x6A, XK_KP_Multiply, 0},
    TTeclaNomeada{0x6B, XK_KP_Add, 0},
    TTeclaNomeada{0x6C, XK_KP_Separator, 0},
    TTeclaNomeada{0x6D, XK_KP_Subtract, 0},
    TTeclaNomeada{0x6E, XK_KP_Decimal, XK_KP_Separator},  // writes a comma in Brazil
    TTeclaNomeada{0x6F, XK_KP_Divide, 0},
    TTeclaNomeada{0x90, XK_Num_Lock, 0},
    TTeclaNomeada{0x91, XK_Scroll_Lock, 0},
    TTeclaNomeada{0xA0, XK_Shift_L, 0},
    TTeclaNomeada{0xA1, XK_Shift_R, 0},
    TTeclaNomeada{0xA2, XK_Control_L, 0},
    TTeclaNomeada{0xA3, XK_Control_R, 0},
    TTeclaNomeada{0xA4, XK_Alt_L, 0},
    TTeclaNomeada{0xA5, XK_Alt_R, XK_ISO_Level3_Shift},  // AltGr on many layouts
};
constexpr std::uint16_t CPrimeiroDoTeclado = 0x60;  // digits of the keypad
constexpr std::uint16_t CPrimeiraFuncao = 0x70;     // F1 to F24
constexpr bool EhDigitoDoTeclado(std::uint16_t ATecla) {
    return ATecla >= CPrimeiroDoTeclado && ATecla < CPrimeiroDoTeclado + 10;
}

struct TBotao {
    std::uint16_t Tecla;
    unsigned Marca;
};
constexpr std::array CBotoes{TBotao{1, XCB_BUTTON_MASK_1}, TBotao{2, XCB_BUTTON_MASK_3}, TBotao{4, XCB_BUTTON_MASK_2}};

constexpr std::uint16_t CTeclaDecimal = 0x6E;
constexpr std::uint8_t CCodigoDecimal = 91;
constexpr xcb_keysym_t CKeysymUnicode = 0x01000000;
constexpr unsigned CDeslocamentoGrupo = 13;

// Latin-1 stands for itself; dead keys, function keys and the old national sets give nothing.
std::u16string CaracteresDe(xcb_keysym_t AKeysym) {
    if ((AKeysym >= 0x20 && AKeysym <= 0x7E) || (AKeysym >= 0xA0 && AKeysym <= 0xFF) || AKeysym == XK_EuroSign)
        return std::u16string(1, static_cast<char16_t>(AKeysym));
    if (AKeysym == XK_KP_Separator) return u",";
    if (AKeysym == XK_KP_Decimal) return u".";
    if (AKeysym > CKeysymUnicode && AKeysym < CKeysymUnicode + 0xD800)
        return std::u16string(1, static_cast<char16_t>(AKeysym - CKeysymUnicode));
    return {};
}

constexpr bool EhParDeLetras(xcb_keysym_t ASemShift, xcb_keysym_t AComShift) {
    const bool minuscula = (ASemShift >= 'a' && ASemShift <= 'z') || (ASemShift >= 0xE0 && ASemShift <= 0xFE);
    return minuscula && AComShift == ASemShift - 0x20;
}

// The column of a key: two for each group, then two for each group with AltGr.
std::size_t BuscarPrimeiroNivel(const TTeclado& ATeclado, std::size_t ATecla) {
    const bool altGr = ATeclado.Modificadores & XCB_MOD_MASK_5;
    const std::size_t grupo = ATeclado.Modificadores >> CDeslocamentoGrupo & 1;
    const std::size_t nivel = (altGr ? 4u : 0u) + 2 * grupo;
    // A key that has nothing in the second group keeps what it has in the first.
    return ATeclado.Buscar(ATecla, nivel) == 0 ? (altGr ? 4u : 0u) : nivel;
}

// The key that writes ALetra (in lower case) or a digit in the present group; on some layouts digits need shift.
std::optional<std::size_t> LocalizarTecla(const TTeclado& ATeclado, xcb_keysym_t AKeysym) {
    const std::size_t grupo = ATeclado.Modificadores >> CDeslocamentoGrupo & 1;
    for (const std::size_t nivel : {2 * grupo, 2 * grupo + 1, std::size_t{0}, std::size_t{1}})
        for (std::size_t tecla = 0; tecla < ATeclado.ContarTeclas(); ++tecla)
            if (ATeclado.Buscar(tecla, nivel) == AKeysym) return tecla;
    return std::nullopt;
}

std::optional<std::size_t> LocalizarTeclaVirtual(const TTeclado& ATeclado, std::uint16_t ATecla) {
    if (ATecla >= '0' && ATecla <= '9') return LocalizarTecla(ATeclado, ATecla);
    if (ATecla >= 'A' && ATecla <= 'Z') return LocalizarTecla(ATeclado, ATecla + 0x20u);
    for (const TTeclaFisica& fisica : CTeclasFisicas)
        if (fisica.Tecla == ATecla && fisica.Codigo >= ATeclado.MenorTecla) return fisica.Codigo - ATeclado.MenorTecla;
    return std::nullopt;
}

TTeclaNomeada NomearTecla(std::uint16_t ATecla) {
    for (const TTeclaNomeada& nomeada : CTeclasNomeadas)
        if (nomeada.Tecla == ATecla) return nomeada;
    if (EhDigitoDoTeclado(ATecla)) return {ATecla, static_cast<xcb_keysym_t>(XK_KP_0 + ATecla - CPrimeiroDoTeclado), 0};
    if (ATecla >= CPrimeiraFuncao && ATecla < CPrimeiraFuncao + 24)
        return {ATecla, static_cast<xcb_keysym_t>(XK_F1 + ATecla - CPrimeiraFuncao), 0};
    return {ATecla, 0, 0};
}

// The server's codes of a virtual key: its own, then that of its other key, as far as the layout has them.
std::array<std::optional<std::uint8_t>, 2> BuscarCodigos(const TTeclado& ATeclado, std::uint16_t ATecla) {
    const auto codigo = [&](std::optional<std::size_t> AIndice) -> std::optional<std::uint8_t> {
        if (!AIndice) return std::nullopt;
        return static_cast<std::uint8_t>(*AIndice + ATeclado.MenorTecla);
    };
    const TTeclaNomeada nomeada = NomearTecla(ATecla);
    if (nomeada.Keysym == 0) return {codigo(LocalizarTeclaVirtual(ATeclado, ATecla)), std::nullopt};
    return {codigo(LocalizarTecla(ATeclado, nomeada.Keysym)),
            nomeada.Outra ? codigo(LocalizarTecla(ATeclado, nomeada.Outra)) : std::nullopt};
}

}  // namespace

void EnviarEventosDeTecla(std::span<const TEventoDeTecla> AEventos) {
    const std::optional<TTeclado> teclado = PerguntarAoServidorX();
    if (!teclado) return;
    std::vector<TToque> toques;
    for (const TEventoDeTecla& evento : AEventos) {
        auto [codigo, outro] = BuscarCodigos(*teclado, evento.Tecla);
        if (outro && (evento.Estendida || !codigo)) codigo = outro;
        if (codigo) toques.push_back({*codigo, evento.Soltar});
    }
    FingirToques(toques);
}

bool TeclaEstahAbaixada(std::uint16_t ATecla) {
    const std::optional<TTeclado> teclado = PerguntarAoServidorX();
    if (!teclado) return false;
    for (const TBotao& botao : CBotoes)
        if (botao.Tecla == ATecla) return teclado->Modificadores & botao.Marca;
    for (const auto& codigo : BuscarCodigos(*teclado, ATecla))
        if (codigo && teclado->Abaixadas[*codigo]) return true;
    return false;
}

std::uint32_t BuscarTempoDeInatividade() { return PerguntarInatividade().value_or(0); }

std::u16string TraduzirTeclaVirtual(std::uint16_t ATecla) {
    const std::optional<TTeclado> teclado = PerguntarAoServidorX();
    if (!teclado) return {};
    for (const TCaractereFixo& fixo : CCaracteresFixos)
        if (fixo.Tecla == ATecla) return std::u16string(1, fixo.Caractere);
    if (EhDigitoDoTeclado(ATecla)) return std::u16string(1, static_cast<char16_t>(u'0' + ATecla - CPrimeiroDoTeclado));
    if (ATecla == CTeclaDecimal) {
        const std::size_t decimal = CCodigoDecimal - std::min(teclado->MenorTecla, CCodigoDecimal);
        return CaracteresDe(teclado->Buscar(decimal, 1));
    }
    const std::optional<std::size_t> tecla = LocalizarTeclaVirtual(*teclado, ATecla);
    if (!tecla) return {};
    const bool altGr = teclado->Modificadores & XCB_MOD_MASK_5;
    if ((teclado->Modificadores & XCB_MOD_MASK_CONTROL) && !altGr)
        return ATecla >= 'A' && ATecla <= 'Z' ? std::u16string(1, static_cast<char16_t>(ATecla - '@'))
                                              : std::u16string();
    const std::size_t nivel = BuscarPrimeiroNivel(*teclado, *tecla);
    const xcb_keysym_t semShift = teclado->Buscar(*tecla, nivel);
    const xcb_keysym_t comShift = teclado->Buscar(*tecla, nivel + 1);
    const bool shift = teclado->Modificadores & XCB_MOD_MASK_SHIFT;
    const bool inverte = (teclado->Modificadores & XCB_MOD_MASK_LOCK) && EhParDeLetras(semShift, comShift);
    return CaracteresDe(shift != inverte ? comShift : semShift);
}

}  // namespace OryUtils::Interno
