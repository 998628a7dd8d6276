#include "oryutils/files/interno/CodificacaoDoLog.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/TextoDoSistema.hpp"

#include <algorithm>
#include <array>
#include <cstring>

namespace OryUtils {
namespace {

std::string Codificar(std::u16string_view ATexto, TCodificacaoLog ACodificacao) {
    switch (ACodificacao) {
        case clUtf8:
            return ParaUtf8(ATexto);
        case clWindows1252:
            return ParaWindows1252(ATexto);
        default:
            return Interno::ParaTextoDoSistema(ATexto);
    }
}

std::u16string Decodificar(std::string_view ABytes, TCodificacaoLog ACodificacao) {
    switch (ACodificacao) {
        case clUtf8:
            return DeUtf8(ABytes);
        case clWindows1252:
            return DeWindows1252(ABytes);
        default:
            return Interno::DeTextoDoSistema(ABytes);
    }
}

constexpr std::size_t CBloco = 16;

// Narrows one block; false when a character of it is beyond ASCII. The compiler turns it into few instructions.
bool EstreitarBloco(char* ADestino, const char16_t* AOrigem) {
    std::array<char16_t, CBloco> letras;
    std::array<char, CBloco> bytes;
    std::memcpy(letras.data(), AOrigem, sizeof letras);
    char16_t todas = 0;
    for (std::size_t i = 0; i < CBloco; ++i) {
        todas = static_cast<char16_t>(todas | letras[i]);
        bytes[i] = static_cast<char>(letras[i]);
    }
    std::memcpy(ADestino, bytes.data(), sizeof bytes);
    return todas < 0x80;
}

// Appends ATexto up to its first character beyond ASCII; the number of characters appended.
std::size_t EstreitarAscii(std::string& ADestino, std::u16string_view ATexto) {
    const std::size_t antes = ADestino.size();
    const std::size_t tamanho = ATexto.size();
    ADestino.resize(antes + tamanho);
    char* const destino = ADestino.data() + antes;
    std::size_t feitos = 0;
    while (feitos + CBloco <= tamanho && EstreitarBloco(destino + feitos, ATexto.data() + feitos)) feitos += CBloco;
    // What is left is the end of one more block, which reaches back into the one before.
    const std::size_t ultimo = tamanho - std::min(tamanho, CBloco);
    if (feitos > ultimo && EstreitarBloco(destino + ultimo, ATexto.data() + ultimo)) return tamanho;
    while (feitos < tamanho && ATexto[feitos] < 0x80) {
        destino[feitos] = static_cast<char>(ATexto[feitos]);
        ++feitos;
    }
    ADestino.resize(antes + feitos);
    return feitos;
}

}  // namespace

// Every encoding here holds ASCII as it is, and most of a log is ASCII.
bool AcrescentarCodificado(std::string& ADestino, std::u16string_view ATexto, TCodificacaoLog ACodificacao) {
    const std::size_t ascii = EstreitarAscii(ADestino, ATexto);
    if (ascii == ATexto.size()) return true;
    ADestino += Codificar(ATexto.substr(ascii), ACodificacao);
    return false;
}

std::vector<std::u16string> SepararLinhas(std::string_view ABytes, TCodificacaoLog ACodificacao) {
    constexpr std::string_view CMarcaUtf8 = "\xEF\xBB\xBF";
    if (ABytes.starts_with(CMarcaUtf8) && Decodificar(CMarcaUtf8, ACodificacao) == u"\uFEFF")
        ABytes.remove_prefix(CMarcaUtf8.size());
    std::vector<std::u16string> linhas;
    // No byte of a longer character of any ANSI code page, nor of UTF-8, is a CR or an LF.
    while (!ABytes.empty()) {
        const std::size_t fim = std::min(ABytes.find_first_of("\r\n"), ABytes.size());
        linhas.push_back(Decodificar(ABytes.substr(0, fim), ACodificacao));
        ABytes.remove_prefix(fim);
        ABytes.remove_prefix(ABytes.starts_with("\r\n") ? 2 : ABytes.empty() ? 0 : 1);
    }
    return linhas;
}

}  // namespace OryUtils
