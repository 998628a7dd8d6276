#include "oryutils/readers/DadoReg.hpp"

#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/readers/LeitorReg.hpp"
#include "oryutils/readers/LinhasReg.hpp"

#include <optional>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CInteiro = u"dword:";
constexpr std::u16string_view CBinario = u"hex:";
constexpr std::u16string_view COutroTipo = u"hex(";
constexpr std::size_t CMaiorColuna = 76;  // room for a byte, its comma and the backslash
constexpr std::size_t CMaisDigitos = 8;

struct TNumeroLido {
    std::uint32_t Valor = 0;
    std::size_t Digitos = 0;
};

// Hexadecimal digits from AInicio on, AMais at most.
TNumeroLido LerHexadecimal(std::u16string_view ATexto, std::size_t AInicio, std::size_t AMais) {
    TNumeroLido numero;
    while (numero.Digitos < AMais && AInicio + numero.Digitos < ATexto.size()) {
        const int digito = ValorHexadecimal(ATexto[AInicio + numero.Digitos]);
        if (digito < 0) break;
        numero.Valor = numero.Valor << 4 | static_cast<std::uint32_t>(digito);
        ++numero.Digitos;
    }
    return numero;
}

// Blanks, and line ends that a backslash takes back.
std::size_t PularEmenda(std::u16string_view ATexto, std::size_t APosicao) {
    while (true) {
        APosicao = PularEspacos(ATexto, APosicao);
        if (APosicao == ATexto.size() || ATexto[APosicao] != u'\\') return APosicao;
        const std::size_t depois = PularEspacos(ATexto, APosicao + 1);
        if (depois == ATexto.size() || !EhFimDeLinha(ATexto[depois])) return APosicao;
        APosicao = BuscarProximaLinha(ATexto, depois);
    }
}

// Calls AByte for each number of the list from AInicio on; the end of the list, npos when it is broken.
template <typename TAcao>
std::size_t PercorrerBytes(std::u16string_view ATexto, std::size_t AInicio, TAcao AByte) {
    std::size_t fim = AInicio;  // an empty list ends where it starts
    for (std::size_t posicao = PularEmenda(ATexto, AInicio);; posicao = PularEmenda(ATexto, posicao + 1)) {
        const TNumeroLido numero = LerHexadecimal(ATexto, posicao, 2);
        if (numero.Digitos == 0) return fim == AInicio ? fim : ATexto.npos;
        AByte(static_cast<char>(numero.Valor));
        fim = posicao + numero.Digitos;
        posicao = PularEmenda(ATexto, fim);
        if (posicao == ATexto.size() || ATexto[posicao] != u',') return fim;
    }
}

struct TListaDeBytes {
    std::uint32_t Tipo;
    std::size_t Inicio;  // behind the colon
};

// "hex:" or "hex(n):" at AInicio.
std::optional<TListaDeBytes> LerCabecalhoDeBytes(std::u16string_view ATexto, std::size_t AInicio) {
    const std::u16string_view resto = ATexto.substr(AInicio);
    if (resto.starts_with(CBinario)) return TListaDeBytes{tdrBinario, AInicio + CBinario.size()};
    if (!resto.starts_with(COutroTipo)) return {};
    const TNumeroLido tipo = LerHexadecimal(resto, COutroTipo.size(), CMaisDigitos);
    const std::size_t fim = COutroTipo.size() + tipo.Digitos;
    if (tipo.Digitos == 0 || !resto.substr(fim).starts_with(u"):")) return {};
    return TListaDeBytes{tipo.Valor, AInicio + fim + 2};
}

std::size_t BuscarFimDoInteiro(std::u16string_view ATexto, std::size_t AInicio) {
    const std::size_t inicio = AInicio + CInteiro.size();
    const std::size_t digitos = LerHexadecimal(ATexto, inicio, CMaisDigitos).Digitos;
    return digitos == 0 ? ATexto.npos : inicio + digitos;
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

std::size_t BuscarFimDoTextoReg(std::u16string_view ATexto, std::size_t AInicio) noexcept {
    for (std::size_t i = AInicio + 1; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        if (c == u'"') return i + 1;
        if (EhFimDeLinha(c) || c == 0) break;
        if (c != u'\\') continue;
        ++i;
        if (i == ATexto.size() || (ATexto[i] != u'\\' && ATexto[i] != u'"')) break;
    }
    return ATexto.npos;
}

std::size_t BuscarFimDoDadoReg(std::u16string_view ATexto, std::size_t AInicio) noexcept {
    const std::u16string_view resto = ATexto.substr(AInicio);
    if (resto.starts_with(u'"')) return BuscarFimDoTextoReg(ATexto, AInicio);
    if (resto.starts_with(CInteiro)) return BuscarFimDoInteiro(ATexto, AInicio);
    const auto lista = LerCabecalhoDeBytes(ATexto, AInicio);
    return lista ? PercorrerBytes(ATexto, lista->Inicio, [](char) {}) : ATexto.npos;
}

TDadoRegistro LerDadoReg(std::u16string_view ATexto) {
    if (ATexto.starts_with(u'"')) {
        std::u16string texto = RetirarEscapes(ATexto.substr(1, ATexto.size() - 2));
        return {tdrTexto, BytesDeUnidades(texto += u'\0')};
    }
    if (ATexto.starts_with(CInteiro)) {
        const std::uint32_t valor = LerHexadecimal(ATexto, CInteiro.size(), CMaisDigitos).Valor;
        TDadoRegistro dado{tdrInteiro, {}};
        for (int i = 0; i < 4; ++i) dado.Bytes += static_cast<char>(valor >> (8 * i));
        return dado;
    }
    const auto lista = LerCabecalhoDeBytes(ATexto, 0);
    TDadoRegistro dado{lista->Tipo, {}};
    PercorrerBytes(ATexto, lista->Inicio, [&](char AByte) { dado.Bytes += AByte; });
    return dado;
}

void AnexarTextoReg(std::u16string& ATexto, std::u16string_view ANome) {
    ATexto += u'"';
    for (const char16_t c : ANome) {
        if (c == u'\\' || c == u'"') ATexto += u'\\';
        ATexto += c;
    }
    ATexto += u'"';
}

void AnexarDadoReg(std::u16string& ATexto, const TDadoRegistro& ADado, std::size_t AColuna) {
    if (const auto texto = BuscarTextoSimples(ADado)) return AnexarTextoReg(ATexto, *texto);
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(ADado.Bytes[i]); };
    if (ADado.Tipo == tdrInteiro && ADado.Bytes.size() == 4) {
        ATexto += CInteiro;
        for (std::size_t i = 4; i > 0; --i) ATexto += TextoHexadecimal(byte(i - 1), 2);
        return;
    }
    const std::size_t inicio = ATexto.size();
    if (ADado.Tipo == tdrBinario) {
        ATexto += CBinario;
    } else {
        ATexto += COutroTipo;
        ATexto += TextoHexadecimal(ADado.Tipo);
        ATexto += u"):";
    }
    std::size_t coluna = AColuna + ATexto.size() - inicio;
    for (std::size_t i = 0; i < ADado.Bytes.size(); ++i, coluna += 3) {
        if (i > 0) ATexto += u',';
        if (i > 0 && coluna > CMaiorColuna) {
            ATexto += u"\\\r\n  ";
            coluna = 2;
        }
        ATexto += TextoHexadecimal(byte(i), 2);
    }
}

}  // namespace OryUtils::Interno
