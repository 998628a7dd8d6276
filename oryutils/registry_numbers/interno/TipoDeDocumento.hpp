#pragma once

#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"
#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

#include <array>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The kinds of documents: one row each.
namespace OryUtils::Interno {

/// What is read of a text.
enum TLeitura : std::uint8_t {
    leDigitos,
    leLetras,    // letters and digits
    leTelefone,  // digits, "(" and ")" dropped, "+" in front
    leTexto,     // all of it, without the blanks around
};
enum TUsoDoContexto : std::uint8_t { ucNenhum, ucUf, ucUfOpcional };
enum TRepetidos : std::uint8_t { rpValem, rpZerosNao, rpIguaisNao };

/// The characters of a number without what is passed over: "0" to "9", "A" to "Z", and "+" in front of a phone.
class TNumeroLimpo {
public:
    static constexpr std::size_t CMaior = 64;

    constexpr TNumeroLimpo() = default;
    constexpr explicit TNumeroLimpo(std::string_view ATexto) noexcept { Juntar(ATexto); }

    constexpr void Juntar(std::string_view ATexto) noexcept {
        for (const char c : ATexto) Juntar(c);
    }
    /// False when there is no room: the number is longer than any document.
    constexpr bool Juntar(char ACaractere) noexcept {
        if (FTamanho == CMaior) return false;
        FCaracteres[FTamanho++] = ACaractere;
        return true;
    }
    constexpr operator std::string_view() const noexcept { return {FCaracteres.data(), FTamanho}; }

private:
    std::array<char, CMaior> FCaracteres{};
    std::size_t FTamanho = 0;
};

inline std::u16string Texto(std::string_view AAscii) { return {AAscii.begin(), AAscii.end()}; }

struct TUnidadeFederativa;

struct TDocumentoLido {
    std::u16string_view Texto;  // as it came, without the blanks around
    TNumeroLimpo Numero{};      // empty for leTexto
    const TUnidadeFederativa* Uf = nullptr;
};

/// The same numbers for one seed on every system.
class TSorteioDeDocumento {
public:
    explicit TSorteioDeDocumento(std::uint64_t ASemente) : FSorteio(ASemente) {}
    /// From ADe to AAte.
    int Entre(int ADe, int AAte) {
        return ADe + static_cast<int>(FSorteio() % static_cast<std::uint64_t>(AAte - ADe + 1));
    }
    std::string Digitos(std::size_t AQuantos);
    std::string Letras(std::size_t AQuantas);

private:
    std::mt19937_64 FSorteio;
};

struct TTipoDeDocumento {
    std::string_view Nome;
    std::u16string_view Titulo;
    bool Feminino = false;
    std::u16string_view Palavras;
    std::u16string_view Forma;
    TLeitura Leitura = leDigitos;
    TUsoDoContexto Contexto = ucNenhum;
    TRepetidos Repetidos = rpValem;
    /// The forms of the number in the table language; or a rule of its own, mask and generator with it.
    std::span<const TFormatoDocumento> Formatos{};
    TMotivoRecusa (*Conferir)(const TDocumentoLido&) noexcept = nullptr;
    std::string_view (*BuscarMascara)(const TDocumentoLido&) noexcept = nullptr;
    std::string (*Gerar)(TSorteioDeDocumento&, const TUnidadeFederativa* AUf) = nullptr;
    void (*Interpretar)(const TDocumentoLido&, std::vector<TFatoDocumento>&) = nullptr;
    std::u16string_view Exemplo{};  // in its mask
    std::u16string_view Regra{}, Fonte{};
};

std::span<const TTipoDeDocumento> BuscarTiposDeDocumento() noexcept;
/// Null for a name that is none.
const TTipoDeDocumento* BuscarTipoDeDocumento(std::u16string_view ANome) noexcept;

/// Reads and checks a number of ATipo.
TMotivoRecusa ConferirDocumento(const TTipoDeDocumento& ATipo, std::u16string_view ANumero,
                                std::u16string_view AContexto, TDocumentoLido& ALido) noexcept;
/// One form after the other; AFormato, when given, becomes the one that accepts the number.
TMotivoRecusa ConferirFormatos(std::span<const TFormatoDocumento> AFormatos, std::string_view ANumero,
                               const TFormatoDocumento** AFormato = nullptr) noexcept;
/// A number of one of AFormatos, chosen by lot.
std::string GerarDosFormatos(std::span<const TFormatoDocumento> AFormatos, TSorteioDeDocumento& ASorteio);

}  // namespace OryUtils::Interno
