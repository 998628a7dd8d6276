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

/// Every .dll and .exe in a folder and below it.
std::vector<std::filesystem::path> BuscarArquivos(const char* ARaiz) {
    std::vector<std::filesystem::path> arquivos;
    for (const auto& entrada : std::filesystem::recursive_directory_iterator(ARaiz))
        if (entrada.path().extension() == ".dll" || entrada.path().extension() == ".exe")
            arquivos.push_back(entrada.path());
    return arquivos;
}

constexpr std::u16string_view CChaves[] = {u"CompanyName",        u"FileDescription",  u"FileVersion",
                                           u"LegalCopyright",     u"OriginalFilename", u"ProductName",
                                           u"MinVersionDataBase", u"SpecialBuild"};

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
    // Wine's own, found when the tests were configured, and those of the tests, with keys that these lack.
    auto arquivos = BuscarArquivos(ORY_ARVORE_WINE);
    ASSERT_GT(arquivos.size(), 100u) << ORY_ARVORE_WINE;
    std::ranges::copy(BuscarArquivos(ORY_RECURSOS_DE_TESTE), std::back_inserter(arquivos));
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
