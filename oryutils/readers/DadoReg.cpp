#include "oryutils/readers/DadoReg.hpp"

#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/characters/Unidades.hpp"

#include <optional>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CInteiro = u"dword:";
constexpr std::u16string_view CBinario = u"hex:";
constexpr std::u16string_view COutroTipo = u"hex(";
constexpr std::size_t CMaiorColuna = 76;  // room for a byte, its comma and the backslash
constexpr int CMaisDigitos = 8;

// A number of one to AMais hexadecimal digits.
std::optional<std::uint32_t> LerHexadecimal(TCursorReg& ACursor, int AMais) {
    std::uint32_t valor = 0;
    int digitos = 0;
    for (; digitos < AMais && ValorHexadecimal(ACursor.Ver()) >= 0; ++digitos, ACursor.Avancar())
        valor = valor << 4 | static_cast<std::uint32_t>(ValorHexadecimal(ACursor.Ver()));
    if (digitos == 0) return {};
    return valor;
}

// Passes blanks, and line ends that have a backslash before them.
void PularEmendas(TCursorReg& ACursor) {
    ACursor.PularEspacos();
    for (TCursorReg depois = ACursor; depois.Aceitar(u"\\"); depois = ACursor) {
        depois.PularEspacos();
        if (!depois.EstahNoFimDaLinha() || depois.Acabou()) return;
        depois.LerLinha();
        depois.PularEspacos();
        ACursor = depois;
    }
}

std::optional<std::string> LerBytes(TCursorReg& ACursor) {
    std::string bytes;
    if (ACursor.SoRestaComentario()) return bytes;
    do {
        PularEmendas(ACursor);
        const auto byte = LerHexadecimal(ACursor, 2);
        if (!byte) return {};
        bytes += static_cast<char>(*byte);
        PularEmendas(ACursor);
    } while (ACursor.Aceitar(u","));
    return bytes;
}

std::string BytesDoInteiro(std::uint32_t AValor) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(AValor >> (8 * i));
    return bytes;
}

// The characters of a text that fits between quotes: one terminator, at its end, and no control before it.
std::optional<std::u16string> BuscarTextoSimples(const TDadoRegistro& ADado) {
    if (ADado.Tipo != tdrTexto || ADado.Bytes.size() < 2 || ADado.Bytes.size() % 2 != 0) return {};
    std::u16string texto = UnidadesDeBytes(ADado.Bytes);
    if (texto.back() != 0) return {};
    texto.pop_back();
    for (const char16_t c : texto)
        if (c < u' ' || c == 0x7F) return {};
    return texto;
}

}  // namespace

std::optional<std::u16string> LerTextoReg(TCursorReg& ACursor) {
    if (!ACursor.Aceitar(u"\"")) return {};
    std::u16string texto;
    while (!ACursor.Aceitar(u"\"")) {
        if (ACursor.Aceitar(u"\\") && ACursor.Ver() != u'\\' && ACursor.Ver() != u'"') return {};
        if (ACursor.EstahNoFimDaLinha() || ACursor.Ver() == 0) return {};
        texto += ACursor.Ver();
        ACursor.Avancar();
    }
    return texto;
}

std::optional<TDadoRegistro> LerDadoReg(TCursorReg& ACursor) {
    if (ACursor.Ver() == u'"') {
        const auto texto = LerTextoReg(ACursor);
        if (!texto) return {};
        return TDadoRegistro{tdrTexto, BytesDeUnidades(*texto + u'\0')};
    }
    if (ACursor.Aceitar(CInteiro)) {
        const auto valor = LerHexadecimal(ACursor, CMaisDigitos);
        if (!valor) return {};
        return TDadoRegistro{tdrInteiro, BytesDoInteiro(*valor)};
    }
    std::optional<std::uint32_t> tipo;
    if (ACursor.Aceitar(CBinario))
        tipo = tdrBinario;
    else if (ACursor.Aceitar(COutroTipo) && (tipo = LerHexadecimal(ACursor, CMaisDigitos)) && !ACursor.Aceitar(u"):"))
        tipo.reset();
    if (!tipo) return {};
    auto bytes = LerBytes(ACursor);
    if (!bytes) return {};
    return TDadoRegistro{*tipo, *std::move(bytes)};
}

void AnexarTextoReg(std::u16string& ATexto, std::u16string_view ANome) {
    ATexto += u'"';
    for (const char16_t c : ANome) {
        if (c == u'\\' || c == u'"') ATexto += u'\\';
        ATexto += c;
    }
    ATexto += u'"';
}

void AnexarDadoReg(std::u16string& ATexto, const TDadoRegistro& ADado, std::size_t AInicioDaLinha) {
    if (const auto texto = BuscarTextoSimples(ADado)) return AnexarTextoReg(ATexto, *texto);
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(ADado.Bytes[i]); };
    if (ADado.Tipo == tdrInteiro && ADado.Bytes.size() == 4) {
        ATexto += CInteiro;
        for (std::size_t i = 4; i > 0; --i) ATexto += TextoHexadecimal(byte(i - 1), 2);
        return;
    }
    if (ADado.Tipo == tdrBinario) {
        ATexto += CBinario;
    } else {
        ATexto += COutroTipo;
        ATexto += TextoHexadecimal(ADado.Tipo);
        ATexto += u"):";
    }
    for (std::size_t i = 0; i < ADado.Bytes.size(); ++i) {
        if (i > 0) ATexto += u',';
        if (i > 0 && ATexto.size() - AInicioDaLinha > CMaiorColuna) {
            ATexto += u"\\\r\n  ";
            AInicioDaLinha = ATexto.size() - 2;
        }
        ATexto += TextoHexadecimal(byte(i), 2);
    }
}

}  // namespace OryUtils::Interno
