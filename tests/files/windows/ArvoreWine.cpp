#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/VersaoDeArquivo.hpp"
#include "oryutils/readers/BlocoDeVersao.hpp"
#include "oryutils/readers/RecursoDeVersaoPe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

// The reader that the Linux library uses against the version functions of the system, over files that nobody here made.

namespace {

using namespace OryUtils;
using namespace OryUtils::Interno;

class TFonteDeArquivo final : public TFonteDeBytes {
public:
    explicit TFonteDeArquivo(const std::filesystem::path& AArquivo) {
        FArquivo.AbrirArquivoParaLer(AArquivo.u16string());
    }
    std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const override {
        return FArquivo.LerEm(AInicio, ADestino);
    }

private:
    TFluxo FArquivo{};
};

/// Every .dll and .exe of the installed Wine, found when the tests were configured; none when there is no Wine.
std::vector<std::filesystem::path> BuscarArquivosDoWine() {
    std::vector<std::filesystem::path> arquivos;
    const std::filesystem::path raiz(ORY_ARVORE_WINE);
    if (raiz.empty()) return arquivos;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(raiz)) {
        const auto extensao = entrada.path().extension();
        if ((extensao == ".dll" || extensao == ".exe") && entrada.is_regular_file()) arquivos.push_back(entrada.path());
    }
    std::sort(arquivos.begin(), arquivos.end());
    return arquivos;
}

constexpr std::u16string_view CChaves[] = {
    u"CompanyName",        u"FileDescription",       u"FileVersion",  u"InternalName",   u"LegalCopyright",
    u"LegalTrademarks",    u"OriginalFilename",      u"ProductName",  u"ProductVersion", u"Comments",
    u"MinVersionDataBase", u"VersaoMaximaConversao", u"SpecialBuild",
};

/// Every answer to the three questions, in one text.
template <typename T>
std::string Descrever(const T& AVersao) {
    std::string texto;
    if (const auto fixa = AVersao.ConsultarFixa())
        texto += std::to_string(fixa->MaisSignificativa) + "." + std::to_string(fixa->MenosSignificativa);
    const auto traducao = AVersao.ConsultarTraducao();
    if (!traducao) return texto;
    texto += " " + std::to_string(traducao->Idioma) + "/" + std::to_string(traducao->PaginaDeCodigo);
    char tabela[16];
    std::snprintf(tabela, sizeof tabela, "%04x%04x", traducao->Idioma, traducao->PaginaDeCodigo);
    for (const auto chave : CChaves)
        if (const auto valor = AVersao.ConsultarTexto(DeUtf8(tabela), chave))
            texto += "\n" + ParaUtf8(chave) + "=" + ParaUtf8(*valor);
    return texto;
}

TEST(ArvoreWine, OLeitorDizOQueOSistemaDiz) {
    auto arquivos = BuscarArquivosDoWine();
    ASSERT_GT(arquivos.size(), 100u) << ORY_ARVORE_WINE;
    // Those of the tests' own resources have keys, translations and numbers that these lack.
    for (const auto& entrada : std::filesystem::directory_iterator(ORY_RECURSOS_DE_TESTE))
        if (entrada.path().extension() != ".o") arquivos.push_back(entrada.path());
    std::size_t comTextos = 0;
    for (const auto& arquivo : arquivos) {
        const TVersaoDeArquivo doSistema(arquivo.u16string());
        const auto bloco = LerRecursoDeVersaoPe(TFonteDeArquivo(arquivo));
        EXPECT_EQ(doSistema.Existe(), !bloco.empty()) << arquivo;
        const std::string resposta = Descrever(doSistema);
        EXPECT_EQ(resposta, Descrever(TBlocoDeVersao(bloco))) << arquivo;
        comTextos += resposta.find('\n') != std::string::npos;
    }
    EXPECT_GT(comTextos, arquivos.size() / 4);
}

}  // namespace
