#pragma once

#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

/// Check digits of CPF and CNPJ over texts of bytes or of UTF-16 units alike.
namespace OryUtils::DigitosCpfCnpj {

/// Weights of the second check digit, the leftmost digit first. The first check digit uses the same ones without the
/// leftmost; the last weight belongs to the first check digit.
inline constexpr std::array CPesosCpf{11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
inline constexpr std::array CPesosCnpj{6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};

/// How a number is written, "0" for each digit. Every other place holds anything but a digit.
inline constexpr std::string_view CCpfLimpo = "00000000000";
inline constexpr std::string_view CCpfFormatado = "000.000.000-00";
inline constexpr std::string_view CCnpjLimpo = "00000000000000";
inline constexpr std::string_view CCnpjFormatado = "00.000.000/0000-00";

/// The check digit of a weighted sum: 11 less the remainder, 0 when above 9.
constexpr unsigned CalcularDigito(unsigned ASoma) noexcept {
    const unsigned resto = ASoma % 11;
    return resto < 2 ? 0 : 11 - resto;
}

/// 0 to 9 for a digit, more for anything else.
template <typename C>
constexpr std::uint16_t ValorDe(C ACaractere) noexcept {
    return static_cast<std::uint16_t>(static_cast<std::make_unsigned_t<C>>(ACaractere) - '0');
}

/// A written form laid over blocks of eight places, which the compiler turns into vector operations. The last block
/// may overlap the one before; a place counts in the first block that has it.
struct TDesenho {
    static constexpr std::size_t CBloco = 8;
    static constexpr std::size_t CBlocos = 3;

    std::size_t Tamanho = 0;
    std::size_t Blocos = 0;
    std::array<std::size_t, CBlocos> Inicio{};
    std::array<std::array<std::int16_t, CBloco>, CBlocos> Pesos1{}, Pesos2{};
    std::array<std::array<std::uint16_t, CBloco>, CBlocos> EhDigito{};  // all bits set where a digit stands
    std::size_t Digito1 = 0, Digito2 = 0;                               // places of the check digits
};

template <std::size_t N>
constexpr TDesenho Desenhar(std::string_view AForma, const std::array<int, N>& APesos) {
    TDesenho desenho;
    desenho.Tamanho = AForma.size();
    desenho.Blocos = (AForma.size() + TDesenho::CBloco - 1) / TDesenho::CBloco;
    for (std::size_t b = 0; b < desenho.Blocos; ++b) {
        const std::size_t fim = (b + 1) * TDesenho::CBloco;
        desenho.Inicio[b] = (fim < AForma.size() ? fim : AForma.size()) - TDesenho::CBloco;
    }
    std::size_t digito = 0;
    for (std::size_t lugar = 0; lugar < AForma.size(); ++lugar) {
        if (AForma[lugar] == '0') {
            const std::size_t bloco = lugar / TDesenho::CBloco;
            const std::size_t posicao = lugar - desenho.Inicio[bloco];
            if (digito < N) desenho.Pesos2[bloco][posicao] = static_cast<std::int16_t>(APesos[digito]);
            if (digito + 1 < N) desenho.Pesos1[bloco][posicao] = static_cast<std::int16_t>(APesos[digito + 1]);
            if (digito + 1 == N) desenho.Digito1 = lugar;
            if (digito == N) desenho.Digito2 = lugar;
            ++digito;
        }
        for (std::size_t b = 0; b < desenho.Blocos; ++b)
            if (lugar >= desenho.Inicio[b] && lugar - desenho.Inicio[b] < TDesenho::CBloco)
                desenho.EhDigito[b][lugar - desenho.Inicio[b]] = AForma[lugar] == '0' ? 0xFFFF : 0;
    }
    return desenho;
}

/// Sums of the two check digits, lane by lane of the blocks: small enough for 16 bits.
struct TSomas {
    std::array<std::int16_t, TDesenho::CBloco> Soma1{}, Soma2{};
    std::array<std::uint16_t, TDesenho::CBloco> Diferenca{};  // 0 while digits stand exactly where they must
};

template <const TDesenho& ADesenho, std::size_t ABloco, typename C>
void SomarBloco(const C* ATexto, TSomas& ASomas) noexcept {
    const C* bloco = ATexto + ADesenho.Inicio[ABloco];
    for (std::size_t i = 0; i < TDesenho::CBloco; ++i) {
        const std::uint16_t valor = ValorDe(bloco[i]);
        const auto digito = static_cast<std::uint16_t>(valor <= 9 ? 0xFFFF : 0);
        ASomas.Diferenca[i] = static_cast<std::uint16_t>(ASomas.Diferenca[i] | (digito ^ ADesenho.EhDigito[ABloco][i]));
        const auto numero = static_cast<std::int16_t>(valor);
        ASomas.Soma1[i] = static_cast<std::int16_t>(ASomas.Soma1[i] + numero * ADesenho.Pesos1[ABloco][i]);
        ASomas.Soma2[i] = static_cast<std::int16_t>(ASomas.Soma2[i] + numero * ADesenho.Pesos2[ABloco][i]);
    }
}

/// The reason when ATexto, of the length of ADesenho, has its digits where ADesenho has them; mrCaractere otherwise.
template <const TDesenho& ADesenho, typename C>
TMotivoRecusa ConferirDesenho(const C* ATexto) noexcept {
    TSomas somas;
    SomarBloco<ADesenho, 0>(ATexto, somas);
    SomarBloco<ADesenho, 1>(ATexto, somas);
    if constexpr (ADesenho.Blocos > 2) SomarBloco<ADesenho, 2>(ATexto, somas);
    static_assert(ADesenho.Blocos == 2 || ADesenho.Blocos == 3);

    int soma1 = 0;
    int soma2 = 0;
    std::uint16_t diferenca = 0;
    for (std::size_t i = 0; i < TDesenho::CBloco; ++i) {
        soma1 += somas.Soma1[i];
        soma2 += somas.Soma2[i];
        diferenca = static_cast<std::uint16_t>(diferenca | somas.Diferenca[i]);
    }
    if (diferenca) return mrCaractere;
    const bool certos = (CalcularDigito(static_cast<unsigned>(soma1)) == ValorDe(ATexto[ADesenho.Digito1])) &
                        (CalcularDigito(static_cast<unsigned>(soma2)) == ValorDe(ATexto[ADesenho.Digito2]));
    return certos ? mrNenhum : mrDigito;
}

/// Any text: its digits, in order, against the bare form. Stops as soon as there are too many.
template <const TDesenho& ALimpo, typename C>
TMotivoRecusa ConferirTextoQualquer(std::basic_string_view<C> ATexto) noexcept {
    constexpr std::size_t CTrecho = 16;
    std::array<C, ALimpo.Tamanho + CTrecho + 1> digitos;
    std::size_t quantos = 0;
    while (!ATexto.empty() && quantos <= ALimpo.Tamanho) {
        const auto trecho = ATexto.substr(0, CTrecho);
        for (const C c : trecho) {
            digitos[quantos] = c;
            quantos += ValorDe(c) <= 9;
        }
        ATexto.remove_prefix(trecho.size());
    }
    return quantos == ALimpo.Tamanho ? ConferirDesenho<ALimpo>(digitos.data()) : mrTamanho;
}

/// The two usual forms are checked where they stand; every other text first loses what is not a digit.
template <const TDesenho& ALimpo, const TDesenho& AFormatado, typename C>
TMotivoRecusa Conferir(std::basic_string_view<C> ATexto) noexcept {
    if (ATexto.size() == AFormatado.Tamanho) {
        const TMotivoRecusa motivo = ConferirDesenho<AFormatado>(ATexto.data());
        if (motivo != mrCaractere) return motivo;
    } else if (ATexto.size() == ALimpo.Tamanho) {
        const TMotivoRecusa motivo = ConferirDesenho<ALimpo>(ATexto.data());
        return motivo == mrCaractere ? mrTamanho : motivo;
    }
    return ConferirTextoQualquer<ALimpo>(ATexto);
}

inline constexpr TDesenho CDesenhoCpfLimpo = Desenhar(CCpfLimpo, CPesosCpf);
inline constexpr TDesenho CDesenhoCpfFormatado = Desenhar(CCpfFormatado, CPesosCpf);
inline constexpr TDesenho CDesenhoCnpjLimpo = Desenhar(CCnpjLimpo, CPesosCnpj);
inline constexpr TDesenho CDesenhoCnpjFormatado = Desenhar(CCnpjFormatado, CPesosCnpj);

/// CPF: everything but digits is dropped. mrNenhum, mrTamanho or mrDigito.
template <typename C>
TMotivoRecusa ConferirCpf(std::basic_string_view<C> ATexto) noexcept {
    return Conferir<CDesenhoCpfLimpo, CDesenhoCpfFormatado>(ATexto);
}

/// Numeric CNPJ, likewise.
template <typename C>
TMotivoRecusa ConferirCnpj(std::basic_string_view<C> ATexto) noexcept {
    return Conferir<CDesenhoCnpjLimpo, CDesenhoCnpjFormatado>(ATexto);
}

/// The fourteen characters of an alphanumeric CNPJ, letters in upper case.
template <typename C>
struct TCnpjAlfanumerico {
    std::array<C, 14> Texto{};
    TMotivoRecusa Motivo = mrTamanho;  // mrNenhum when there are fourteen and each may stand where it stands
};

template <typename C>
TCnpjAlfanumerico<C> LimparCnpjAlfanumerico(std::basic_string_view<C> ATexto) noexcept {
    TCnpjAlfanumerico<C> cnpj;
    std::size_t quantos = 0;
    for (C c : ATexto) {
        const auto codigo = static_cast<std::make_unsigned_t<C>>(c);
        if (codigo <= ' ' || c == '.' || c == '/' || c == '-') continue;
        if (quantos == cnpj.Texto.size()) {
            cnpj.Motivo = mrTamanho;
            return cnpj;
        }
        if (c >= 'a' && c <= 'z') c = static_cast<C>(c - ('a' - 'A'));
        const bool digito = c >= '0' && c <= '9';
        const bool letra = c >= 'A' && c <= 'Z' && quantos < 12;
        if (!digito && !letra) {
            cnpj.Motivo = mrCaractere;
            return cnpj;
        }
        cnpj.Texto[quantos++] = c;
    }
    if (quantos == cnpj.Texto.size()) cnpj.Motivo = mrNenhum;
    return cnpj;
}

/// CNPJ of letters and digits: each character counts as its code less that of "0".
template <typename C>
TMotivoRecusa ConferirCnpjAlfanumerico(std::basic_string_view<C> ATexto) noexcept {
    const TCnpjAlfanumerico<C> cnpj = LimparCnpjAlfanumerico(ATexto);
    if (cnpj.Motivo != mrNenhum) return cnpj.Motivo;
    unsigned soma1 = 0;
    unsigned soma2 = 0;
    for (std::size_t i = 0; i < CPesosCnpj.size(); ++i) {
        const unsigned valor = ValorDe(cnpj.Texto[i]);
        soma2 += valor * static_cast<unsigned>(CPesosCnpj[i]);
        if (i + 1 < CPesosCnpj.size()) soma1 += valor * static_cast<unsigned>(CPesosCnpj[i + 1]);
    }
    const bool certos =
        CalcularDigito(soma1) == ValorDe(cnpj.Texto[12]) && CalcularDigito(soma2) == ValorDe(cnpj.Texto[13]);
    return certos ? mrNenhum : mrDigito;
}

}  // namespace OryUtils::DigitosCpfCnpj
