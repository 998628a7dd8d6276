#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/characters/Utf.hpp"

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

void* AbrirConversor(const std::string& ACodificacao) {
    const char* destino = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
    const iconv_t conversor = ::iconv_open(destino, ACodificacao.c_str());
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

}  // namespace

TDecodificadorAnsi::~TDecodificadorAnsi() {
    if (FConversor) ::iconv_close(FConversor);
}

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) {
    if (FTipo == tdNaoPerguntado) {
        const std::string codificacao = BuscarCodificacao();
        if (codificacao != "UTF-8") FConversor = AbrirConversor(codificacao);
        FTipo = FConversor ? tdOutro : tdUtf8;
    }
    return FTipo == tdUtf8 ? DeUtf8(ABytes) : Converter(FConversor, ABytes);
}

}  // namespace OryUtils::Interno
