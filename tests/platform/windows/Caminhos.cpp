#include "oryutils/platform/windows/CaminhoDoSistema.hpp"
#include "oryutils/platform/windows/CriacaoDePastas.hpp"

#include <gtest/gtest.h>

#include <set>

namespace OryUtils::Interno {
namespace {

TEST(Caminhos, OLimiteDoSistema) {
    const std::u16string comprido(300, u'n');
    wchar_t atual[MAX_PATH];
    const std::u16string aqui = DeWide({atual, ::GetCurrentDirectoryW(MAX_PATH, atual)});
    const std::tuple<std::u16string, std::u16string, const char*> casos[] = {
        {u"C:\\a\\b.txt", u"C:\\a\\b.txt", "short paths stay as they are"},
        {u"C:\\" + std::u16string(244, u'n'), u"C:\\" + std::u16string(244, u'n'), "247 characters"},
        {u"C:\\" + std::u16string(245, u'n'), u"\\\\?\\C:\\" + std::u16string(245, u'n'), "248 characters"},
        {u"C:/a/../" + comprido + u"/./b", u"\\\\?\\C:\\" + comprido + u"\\b", "the mark takes names as they are"},
        {u"\\\\servidor\\pasta\\" + comprido, u"\\\\?\\UNC\\servidor\\pasta\\" + comprido, "a share"},
        {u"\\\\?\\C:\\" + comprido, u"\\\\?\\C:\\" + comprido, "marked already"},
        {comprido, u"\\\\?\\" + aqui + (aqui.ends_with(u'\\') ? u"" : u"\\") + comprido, "below the current folder"},
    };
    for (const auto& [nome, esperado, porque] : casos) {
        const std::wstring caminho = CaminhoDoSistema(nome);
        EXPECT_TRUE(DeWide(caminho) == esperado) << porque << ": " << std::string(caminho.begin(), caminho.end());
    }
}

TEST(Caminhos, SoAsPastasQueFaltamSaoPedidas) {
    const std::tuple<std::set<std::u16string>, const char16_t*, std::u16string, bool, const char*> casos[] = {
        {{u"\\\\s\\p\\a"}, u"\\\\s\\p\\a\\b", u"\\\\s\\p\\a\\b;", true, "one is missing"},
        {{u"C:\\a"}, u"C:\\a\\b/c\\", u"C:\\a\\b/c\\;C:\\a\\b;C:\\a\\b/c\\;", true, "from below to above"},
        {{}, u"Q:\\a", u"Q:\\a;Q:;", false, "no such drive"},
        {{}, u"a", u"a;", false, "nothing above"},
    };
    for (const auto& [existentes, pasta, pedidas, conseguiu, porque] : casos) {
        std::set<std::u16string> existem = existentes;
        std::u16string pedidos;
        const auto criar = [&](std::u16string_view APasta) -> DWORD {
            pedidos.append(APasta).append(u";");
            std::u16string nome(APasta.substr(0, APasta.find_last_not_of(u"\\/") + 1));
            const std::size_t fim = nome.find_last_of(u"\\/");
            if (fim == nome.npos || !existem.contains(nome.substr(0, fim))) return ERROR_PATH_NOT_FOUND;
            return existem.insert(nome).second ? ERROR_SUCCESS : ERROR_ALREADY_EXISTS;
        };
        EXPECT_EQ(CriarComAsDeCima(pasta, criar), conseguiu) << porque;
        EXPECT_EQ(pedidos, pedidas) << porque;
    }
}

}  // namespace
}  // namespace OryUtils::Interno
