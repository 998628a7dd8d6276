#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/characters/Utf.hpp"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

namespace OryUtils::Interno {
namespace {

std::string BuscarCodificacao() {
    const locale_t localidade = ::newlocale(LC_CTYPE_MASK, "", nullptr);
    if (!localidade) return "UTF-8";
    std::string nome = ::nl_langinfo_l(CODESET, localidade);
    ::freelocale(localidade);
    return nome == "ANSI_X3.4-1968" ? "UTF-8" : nome;
}

constexpr const char* CUtf16 = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";

void* AbrirConversor(const std::string& ACodificacao) {
    const iconv_t conversor = ::iconv_open(CUtf16, ACodificacao.c_str());
    return conversor == reinterpret_cast<iconv_t>(-1) ? nullptr : conversor;
}

// One U+FFFD for each byte that the code set does not know.
std::u16string Converter(void* AConversor, std::string_view ABytes) {
    std::u16string texto;
    std::string origem(ABytes);
    char* entrada = origem.data();
    std::size_t resto = origem.size();
    ::iconv(AConversor, nullptr, nullptr, nullptr, nullptr);
    while (resto > 0) {
        char16_t parte[256];
        char* saida = reinterpret_cast<char*>(parte);
        std::size_t espaco = sizeof(parte);
        const std::size_t situacao = ::iconv(AConversor, &entrada, &resto, &saida, &espaco);
        const int erro = errno;
        texto.append(parte, (sizeof(parte) - espaco) / sizeof(char16_t));
        if (situacao != static_cast<std::size_t>(-1) || erro == E2BIG) continue;
        texto += u'\xFFFD';
        ++entrada;
        --resto;
    }
    return texto;
}

/// "?" for each character that the code set does not have.
std::string Codificar(iconv_t AConversor, std::u16string_view ATexto) {
    std::string bytes;
    std::u16string origem(ATexto);
    char* entrada = reinterpret_cast<char*>(origem.data());
    std::size_t resto = origem.size() * sizeof(char16_t);
    while (resto > 0) {
        char parte[512];
        char* saida = parte;
        std::size_t espaco = sizeof(parte);
        const std::size_t situacao = ::iconv(AConversor, &entrada, &resto, &saida, &espaco);
        const int erro = errno;
        bytes.append(parte, sizeof(parte) - espaco);
        if (situacao != static_cast<std::size_t>(-1) || erro == E2BIG) continue;
        bytes += '?';
        const bool par = resto >= 4 && (*reinterpret_cast<const char16_t*>(entrada) & 0xFC00) == 0xD800;
        const std::size_t usados = std::min<std::size_t>(par ? 4 : 2, resto);
        entrada += usados;
        resto -= usados;
    }
    return bytes;
}

}  // namespace

std::string CodificarAnsi(std::u16string_view ATexto) {
    const std::string codificacao = BuscarCodificacao();
    if (codificacao == "UTF-8") return ParaUtf8(ATexto);
    const iconv_t conversor = ::iconv_open(codificacao.c_str(), CUtf16);
    if (conversor == reinterpret_cast<iconv_t>(-1)) return ParaUtf8(ATexto);
    std::string bytes = Codificar(conversor, ATexto);
    ::iconv_close(conversor);
    return bytes;
}

TDecodificadorAnsi::~TDecodificadorAnsi() {
    if (FConversor) ::iconv_close(FConversor);
}

void TDecodificadorAnsi::Perguntar() {
    constexpr std::uint32_t CConsole = 1, CUtf8 = 65001;
    if (FTipo != tdNaoPerguntado) return;
    std::string codificacao = FPagina <= CConsole ? BuscarCodificacao() : "CP" + std::to_string(FPagina);
    if (FPagina == CUtf8) codificacao = "UTF-8";
    if (codificacao != "UTF-8") FConversor = AbrirConversor(codificacao);
    FTipo = FConversor ? tdOutro : tdUtf8;
    FConhece = FConversor || codificacao == "UTF-8" || FPagina <= CConsole;
}

bool TDecodificadorAnsi::ConhecePagina() {
    Perguntar();
    return FConhece;
}

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) {
    Perguntar();
    return FTipo == tdUtf8 ? DeUtf8(ABytes) : Converter(FConversor, ABytes);
}

}  // namespace OryUtils::Interno
