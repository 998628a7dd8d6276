#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace OryUtils::Interno {

/// A short piece of SQL known beforehand. It is copied with its padding, by one move of fixed length.
class TPedacoSql {
public:
    static constexpr std::size_t CMaiorTamanho = 16;

    consteval TPedacoSql(const char16_t* ATexto) {
        for (; *ATexto != u'\0'; ++ATexto) FTexto.at(FTamanho++) = *ATexto;
    }
    constexpr std::u16string_view GetTexto() const noexcept { return {FTexto.data(), FTamanho}; }
    /// ADestino has room for CMaiorTamanho characters. The result is the end of what counts.
    char16_t* Escrever(char16_t* ADestino) const noexcept {
        std::copy_n(FTexto.data(), CMaiorTamanho, ADestino);
        return ADestino + FTamanho;
    }

private:
    std::array<char16_t, CMaiorTamanho> FTexto{};
    std::size_t FTamanho = 0;
};

/// The text of a statement while it is written: who knows how long the next pieces are at most asks for their room once
/// and writes them without further questions.
class TTextoSql {
public:
    explicit TTextoSql(std::size_t AEstimativa) : FTexto(AEstimativa, u'\0') {}

    std::size_t GetTamanho() const noexcept { return FTamanho; }
    /// Where the next character goes, with room for AMaximo of them. Fechar tells where they ended.
    char16_t* Abrir(std::size_t AMaximo) {
        if (FTexto.size() - FTamanho < AMaximo) FTexto.resize(std::max(FTamanho + AMaximo, FTexto.size() * 2));
        return FTexto.data() + FTamanho;
    }
    void Fechar(const char16_t* AFim) noexcept { FTamanho = static_cast<std::size_t>(AFim - FTexto.data()); }

    void Anexar(const TPedacoSql& APedaco) { Fechar(APedaco.Escrever(Abrir(TPedacoSql::CMaiorTamanho))); }
    void Anexar(char16_t ACaractere) {
        char16_t* fim = Abrir(1);
        *fim++ = ACaractere;
        Fechar(fim);
    }
    void AnexarTexto(std::u16string_view ATexto) {
        Fechar(std::copy(ATexto.begin(), ATexto.end(), Abrir(ATexto.size())));
    }
    /// Everything behind the first ATamanho characters is dropped.
    void Recuar(std::size_t ATamanho) noexcept { FTamanho = ATamanho; }

    std::u16string Terminar() && {
        FTexto.resize(FTamanho);
        return std::move(FTexto);
    }

private:
    std::u16string FTexto;
    std::size_t FTamanho = 0;
};

}  // namespace OryUtils::Interno
