#include "oryutils/characters/Caixa.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"

#include <algorithm>
#include <initializer_list>

namespace OryUtils {
namespace {

bool TemExtensao(std::u16string_view AArquivo, std::initializer_list<std::u16string_view> AExtensoes) {
    const std::u16string extensao = MinusculaDe(ExtrairExtensaoDoArquivo(AArquivo));
    return std::find(AExtensoes.begin(), AExtensoes.end(), extensao) != AExtensoes.end();
}

}  // namespace

bool TOryUtilsFiles::EhArquivoEXE(std::u16string_view AArquivo) { return TemExtensao(AArquivo, {u".exe"}); }
bool TOryUtilsFiles::EhArquivoBPL(std::u16string_view AArquivo) { return TemExtensao(AArquivo, {u".bpl"}); }
bool TOryUtilsFiles::EhArquivoDLL(std::u16string_view AArquivo) { return TemExtensao(AArquivo, {u".dll"}); }
bool TOryUtilsFiles::EhArquivoDAT(std::u16string_view AArquivo) { return TemExtensao(AArquivo, {u".dat"}); }
bool TOryUtilsFiles::EhArquivoINI(std::u16string_view AArquivo) { return TemExtensao(AArquivo, {u".ini"}); }
bool TOryUtilsFiles::EhArquivoHTML(std::u16string_view AArquivo) {
    return TemExtensao(AArquivo, {u".html", u".css", u".js"});
}
bool TOryUtilsFiles::EhArquivoVersionado(std::u16string_view AArquivo) {
    return EhArquivoEXE(AArquivo) || EhArquivoBPL(AArquivo) || EhArquivoDLL(AArquivo);
}

std::u16string GetExtensionFromFile(std::u16string_view AArquivo) {
    return MaiusculaDe(ExtrairExtensaoDoArquivo(AArquivo));
}

}  // namespace OryUtils
