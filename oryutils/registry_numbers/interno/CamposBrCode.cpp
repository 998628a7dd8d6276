#include "oryutils/registry_numbers/interno/CamposBrCode.hpp"

#include "oryutils/characters/Ascii.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Hexadecimal.hpp"

#include <algorithm>
#include <cstdint>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CInterface = u"br.gov.bcb.pix";
constexpr int CPrimeiroDePix = 26, CUltimoDePix = 51;

bool SaoDigitos(std::u16string_view ATexto) noexcept { return std::ranges::all_of(ATexto, EhDigito); }

/// Two digits; -1 for anything else.
int LerDois(std::u16string_view ATexto) noexcept {
    return ATexto.size() == 2 && SaoDigitos(ATexto) ? (ATexto[0] - u'0') * 10 + (ATexto[1] - u'0') : -1;
}

std::uint16_t SomarAoCrc(std::uint16_t ACrc, unsigned AByte) noexcept {
    unsigned crc = ACrc ^ (AByte << 8);
    for (int bit = 0; bit < 8; ++bit) crc = crc & 0x8000 ? crc << 1 ^ 0x1021 : crc << 1;
    return static_cast<std::uint16_t>(crc);
}

// Digits, then at most one point with one or two digits.
bool EhValor(std::u16string_view ATexto) noexcept {
    if (ATexto.empty() || ATexto.size() > 13) return false;
    const std::size_t ponto = ATexto.find(u'.');
    const std::u16string_view inteiro = ATexto.substr(0, ponto);
    if (inteiro.empty() || !SaoDigitos(inteiro)) return false;
    if (ponto == ATexto.npos) return true;
    const std::u16string_view centavos = ATexto.substr(ponto + 1);
    return (centavos.size() == 1 || centavos.size() == 2) && SaoDigitos(centavos);
}

bool EhIdentificador(std::u16string_view ATexto) noexcept {
    if (ATexto == u"***") return true;
    return !ATexto.empty() && ATexto.size() <= 25 &&
           std::ranges::all_of(ATexto, [](char16_t c) { return EhDigito(c) || EhLetra(c); });
}

bool EhCampoPixCerto(std::u16string_view APix) noexcept {
    const auto chave = BuscarCampo(APix, 1);
    const auto endereco = BuscarCampo(APix, 25);
    if (chave.has_value() == endereco.has_value()) return false;
    return !(chave ? *chave : *endereco).empty();
}

bool CrcConfere(std::u16string_view ATexto) noexcept {
    std::uint16_t crc = 0xFFFF;
    for (const char16_t c : ATexto.substr(0, ATexto.size() - 4)) crc = SomarAoCrc(crc, c);
    int escrito = 0;
    for (const char16_t c : ATexto.substr(ATexto.size() - 4)) {
        if (ValorHexadecimal(c) < 0) return false;
        escrito = escrito * 16 + ValorHexadecimal(c);
    }
    return escrito == crc;
}

// What a field holds, where it stands; the Pix field and the check are looked at apart.
bool ValorPodeEstar(const TCamposBrCode::TCampo& ACampo) noexcept {
    const std::u16string_view valor = ACampo.Valor;
    switch (ACampo.Numero) {
        case 0:
            return valor == u"01";
        case 1:
            return valor == u"11" || valor == u"12";
        case 52:
            return valor.size() == 4 && SaoDigitos(valor);
        case 53:
            return valor == u"986";
        case 54:
            return EhValor(valor);
        case 58:
            return valor == u"BR";
        case 59:
            return !valor.empty() && valor.size() <= 25;
        case 60:
            return !valor.empty() && valor.size() <= 15;
        case 62:
            return EhIdentificador(BuscarCampo(valor, 5).value_or(u""));
        case 63:
            return valor.size() == 4;
        default:
            return true;
    }
}

}  // namespace

std::optional<TCamposBrCode::TCampo> TCamposBrCode::Proximo() noexcept {
    if (FResto.empty()) return {};
    const int numero = LerDois(FResto.substr(0, 2));
    const int tamanho = FResto.size() < 4 ? -1 : LerDois(FResto.substr(2, 2));
    if (numero < 0 || tamanho < 0 || FResto.size() < 4 + static_cast<std::size_t>(tamanho) ||
        FVistos[static_cast<std::size_t>(numero)]) {
        FCerto = false;
        return {};
    }
    FVistos.set(static_cast<std::size_t>(numero));
    const TCampo campo{numero, FResto.substr(4, static_cast<std::size_t>(tamanho))};
    FResto.remove_prefix(4 + campo.Valor.size());
    return campo;
}

std::optional<std::u16string_view> BuscarCampo(std::u16string_view ATexto, int ANumero) noexcept {
    std::optional<std::u16string_view> achado;
    TCamposBrCode campos(ATexto);
    while (const auto campo = campos.Proximo())
        if (campo->Numero == ANumero) achado = campo->Valor;
    return campos.EstahCerto() ? achado : std::nullopt;
}

std::optional<std::u16string_view> BuscarCampoPix(std::u16string_view ATexto) noexcept {
    TCamposBrCode campos(ATexto);
    while (const auto campo = campos.Proximo()) {
        if (campo->Numero < CPrimeiroDePix || campo->Numero > CUltimoDePix) continue;
        const auto interface = BuscarCampo(campo->Valor, 0);
        if (interface && std::ranges::equal(*interface, CInterface, {}, MinusculaAscii<char16_t>)) return campo->Valor;
    }
    return {};
}

TMotivoRecusa ConferirBrCode(std::u16string_view ATexto) noexcept {
    if (std::ranges::any_of(ATexto, [](char16_t c) { return c < u' ' || c > u'~'; })) return mrCaractere;
    std::bitset<100> presentes;
    int primeiro = -1, ultimo = -1;
    TCamposBrCode campos(ATexto);
    while (const auto campo = campos.Proximo()) {
        if (!ValorPodeEstar(*campo)) return mrForma;
        if (primeiro < 0) primeiro = campo->Numero;
        ultimo = campo->Numero;
        presentes.set(static_cast<std::size_t>(ultimo));
    }
    if (!campos.EstahCerto() || primeiro != 0 || ultimo != 63) return mrForma;
    for (const std::size_t exigido : {52u, 53u, 58u, 59u, 60u, 62u})
        if (!presentes[exigido]) return mrForma;
    const auto pix = BuscarCampoPix(ATexto);
    if (!pix || !EhCampoPixCerto(*pix)) return mrForma;
    return CrcConfere(ATexto) ? mrNenhum : mrDigito;
}

std::string MontarCampo(std::string_view ANumero, std::string_view AValor) {
    std::string tamanho = std::to_string(AValor.size());
    if (tamanho.size() < 2) tamanho.insert(0, 1, '0');
    return std::string(ANumero) + tamanho + std::string(AValor);
}

std::string CalcularCrc(std::string_view ATexto) {
    std::uint16_t crc = 0xFFFF;
    for (const char c : ATexto) crc = SomarAoCrc(crc, static_cast<unsigned char>(c));
    std::string digitos;
    for (int desloca = 12; desloca >= 0; desloca -= 4) digitos += "0123456789ABCDEF"[crc >> desloca & 15];
    return digitos;
}

}  // namespace OryUtils::Interno
