#include "oryutils/platform/Teclado.hpp"

#include "oryutils/platform/linux/TecladoX.hpp"

#include <algorithm>
#include <array>

namespace OryUtils::Plataforma {
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

}  // namespace

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

}  // namespace OryUtils::Plataforma
