#include "oryutils/platform/Teclado.hpp"

#include "oryutils/platform/linux/TecladoX.hpp"

#include <algorithm>
#include <array>

namespace OryUtils::Interno {
namespace {

struct TCaractereFixo {
    std::uint16_t Tecla;
    char16_t Caractere;
};
// Keys that give the same character in every layout and state.
constexpr std::array CCaracteresFixos{
    TCaractereFixo{0x08, u'\b'}, TCaractereFixo{0x09, u'\t'}, TCaractereFixo{0x0D, u'\r'}, TCaractereFixo{0x1B, 0x1B},
    TCaractereFixo{0x20, u' '},  TCaractereFixo{0x60, u'0'},  TCaractereFixo{0x61, u'1'},  TCaractereFixo{0x62, u'2'},
    TCaractereFixo{0x63, u'3'},  TCaractereFixo{0x64, u'4'},  TCaractereFixo{0x65, u'5'},  TCaractereFixo{0x66, u'6'},
    TCaractereFixo{0x67, u'7'},  TCaractereFixo{0x68, u'8'},  TCaractereFixo{0x69, u'9'},  TCaractereFixo{0x6A, u'*'},
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
    TKeysym Keysym;
    TKeysym Outra;  // the second key of that number: the right one, or the keypad's
};
// Keys that write nothing, and those of the keypad, are found by their names.
constexpr std::array CTeclasNomeadas{
    TTeclaNomeada{0x08, 0xFF08, 0},       // BackSpace
    TTeclaNomeada{0x09, 0xFF09, 0},       // Tab
    TTeclaNomeada{0x0C, 0xFF0B, 0},       // Clear
    TTeclaNomeada{0x0D, 0xFF0D, 0xFF8D},  // Return, KP_Enter
    TTeclaNomeada{0x10, 0xFFE1, 0xFFE2},  // Shift_L, Shift_R
    TTeclaNomeada{0x11, 0xFFE3, 0xFFE4},  // Control_L, Control_R
    TTeclaNomeada{0x12, 0xFFE9, 0xFFEA},  // Alt_L, Alt_R
    TTeclaNomeada{0x13, 0xFF13, 0},       // Pause
    TTeclaNomeada{0x14, 0xFFE5, 0},       // Caps_Lock
    TTeclaNomeada{0x1B, 0xFF1B, 0},       // Escape
    TTeclaNomeada{0x20, 0x0020, 0},       // space
    TTeclaNomeada{0x21, 0xFF55, 0},       // Prior
    TTeclaNomeada{0x22, 0xFF56, 0},       // Next
    TTeclaNomeada{0x23, 0xFF57, 0},       // End
    TTeclaNomeada{0x24, 0xFF50, 0},       // Home
    TTeclaNomeada{0x25, 0xFF51, 0},       // Left
    TTeclaNomeada{0x26, 0xFF52, 0},       // Up
    TTeclaNomeada{0x27, 0xFF53, 0},       // Right
    TTeclaNomeada{0x28, 0xFF54, 0},       // Down
    TTeclaNomeada{0x2C, 0xFF61, 0},       // Print
    TTeclaNomeada{0x2D, 0xFF63, 0},       // Insert
    TTeclaNomeada{0x2E, 0xFFFF, 0},       // Delete
    TTeclaNomeada{0x5B, 0xFFEB, 0},       // Super_L
    TTeclaNomeada{0x5C, 0xFFEC, 0},       // Super_R
    TTeclaNomeada{0x5D, 0xFF67, 0},       // Menu
    TTeclaNomeada{0x6A, 0xFFAA, 0},       // KP_Multiply
    TTeclaNomeada{0x6B, 0xFFAB, 0},       // KP_Add
    TTeclaNomeada{0x6C, 0xFFAC, 0},       // KP_Separator
    TTeclaNomeada{0x6D, 0xFFAD, 0},       // KP_Subtract
    TTeclaNomeada{0x6E, 0xFFAE, 0xFFAC},  // KP_Decimal, which writes a comma in Brazil
    TTeclaNomeada{0x6F, 0xFFAF, 0},       // KP_Divide
    TTeclaNomeada{0x90, 0xFF7F, 0},       // Num_Lock
    TTeclaNomeada{0x91, 0xFF14, 0},       // Scroll_Lock
    TTeclaNomeada{0xA0, 0xFFE1, 0},       // Shift_L
    TTeclaNomeada{0xA1, 0xFFE2, 0},       // Shift_R
    TTeclaNomeada{0xA2, 0xFFE3, 0},       // Control_L
    TTeclaNomeada{0xA3, 0xFFE4, 0},       // Control_R
    TTeclaNomeada{0xA4, 0xFFE9, 0},       // Alt_L
    TTeclaNomeada{0xA5, 0xFFEA, 0xFE03},  // Alt_R, which is AltGr on many layouts
};
constexpr std::uint16_t CPrimeiroDoTeclado = 0x60;  // digits of the keypad
constexpr TKeysym CKeysymDoTeclado = 0xFFB0;
constexpr std::uint16_t CPrimeiraFuncao = 0x70;  // F1 to F24
constexpr TKeysym CKeysymFuncao = 0xFFBE;

struct TBotao {
    std::uint16_t Tecla;
    unsigned Marca;
};
constexpr std::array CBotoes{TBotao{1, CBotaoEsquerdo}, TBotao{2, CBotaoDireito}, TBotao{4, CBotaoDoMeio}};

constexpr std::uint16_t CTeclaDecimal = 0x6E;
constexpr std::uint8_t CCodigoDecimal = 91;
constexpr TKeysym CKeysymSeparador = 0xFFAC;  // the keypad's decimal key where it writes a comma
constexpr TKeysym CKeysymDecimal = 0xFFAE;
constexpr TKeysym CKeysymEuro = 0x20AC;
constexpr TKeysym CKeysymUnicode = 0x01000000;

// Latin-1 stands for itself; dead keys, function keys and the old national sets give nothing.
std::u16string CaracteresDe(TKeysym AKeysym) {
    if ((AKeysym >= 0x20 && AKeysym <= 0x7E) || (AKeysym >= 0xA0 && AKeysym <= 0xFF) || AKeysym == CKeysymEuro)
        return std::u16string(1, static_cast<char16_t>(AKeysym));
    if (AKeysym == CKeysymSeparador) return u",";
    if (AKeysym == CKeysymDecimal) return u".";
    if (AKeysym > CKeysymUnicode && AKeysym < CKeysymUnicode + 0xD800)
        return std::u16string(1, static_cast<char16_t>(AKeysym - CKeysymUnicode));
    return {};
}

constexpr bool EhParDeLetras(TKeysym ASemShift, TKeysym AComShift) {
    const bool minuscula = (ASemShift >= 'a' && ASemShift <= 'z') || (ASemShift >= 0xE0 && ASemShift <= 0xFE);
    return minuscula && AComShift == ASemShift - 0x20;
}

// The column of a key: two for each group, then two for each group with AltGr.
std::size_t BuscarPrimeiroNivel(const TTeclado& ATeclado, std::size_t ATecla) {
    const bool altGr = ATeclado.Modificadores & CAltGr;
    const std::size_t grupo = ATeclado.Modificadores >> CDeslocamentoGrupo & 1;
    const std::size_t nivel = (altGr ? 4u : 0u) + 2 * grupo;
    // A key that has nothing in the second group keeps what it has in the first.
    return ATeclado.Buscar(ATecla, nivel) == 0 ? (altGr ? 4u : 0u) : nivel;
}

// The key that writes ALetra (in lower case) or a digit in the present group; on some layouts digits need shift.
std::optional<std::size_t> LocalizarTecla(const TTeclado& ATeclado, TKeysym AKeysym) {
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
    if (ATecla >= CPrimeiroDoTeclado && ATecla < CPrimeiroDoTeclado + 10)
        return {ATecla, CKeysymDoTeclado + ATecla - CPrimeiroDoTeclado, 0};
    if (ATecla >= CPrimeiraFuncao && ATecla < CPrimeiraFuncao + 24)
        return {ATecla, CKeysymFuncao + ATecla - CPrimeiraFuncao, 0};
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
    if (ATecla == CTeclaDecimal) {
        const std::size_t decimal = CCodigoDecimal - std::min(teclado->MenorTecla, CCodigoDecimal);
        return CaracteresDe(teclado->Buscar(decimal, 1));
    }
    const std::optional<std::size_t> tecla = LocalizarTeclaVirtual(*teclado, ATecla);
    if (!tecla) return {};
    const bool altGr = teclado->Modificadores & CAltGr;
    if ((teclado->Modificadores & CControl) && !altGr)
        return ATecla >= 'A' && ATecla <= 'Z' ? std::u16string(1, static_cast<char16_t>(ATecla - '@'))
                                              : std::u16string();
    const std::size_t nivel = BuscarPrimeiroNivel(*teclado, *tecla);
    const TKeysym semShift = teclado->Buscar(*tecla, nivel);
    const TKeysym comShift = teclado->Buscar(*tecla, nivel + 1);
    const bool shift = teclado->Modificadores & CShift;
    const bool inverte = (teclado->Modificadores & CCapsLock) && EhParDeLetras(semShift, comShift);
    return CaracteresDe(shift != inverte ? comShift : semShift);
}

}  // namespace OryUtils::Interno
