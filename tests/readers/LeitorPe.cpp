#include "oryutils/readers/BlocoDeVersao.hpp"
#include "oryutils/readers/RecursoDeVersaoPe.hpp"

#include "comum/Acaso.hpp"
#include "files/ConstrutorPe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

// The library's own reader against files that mean no good. It is part of the Linux library; its sources know no
// system, so that these tests run everywhere.

namespace {

using namespace OryUtils::Interno;

/// A file of ATamanho bytes: each part at its place, zeros elsewhere. Counts what is read.
class TFonteDeTeste final : public TFonteDeBytes {
public:
    using TPartes = std::vector<std::pair<std::uint64_t, std::string_view>>;
    TFonteDeTeste(TPartes APartes, std::uint64_t ATamanho) : FPartes(std::move(APartes)), FTamanho(ATamanho) {}

    std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const override {
        const std::size_t lidos = std::min<std::uint64_t>(ADestino.size(), FTamanho - std::min(AInicio, FTamanho));
        std::fill_n(ADestino.begin(), lidos, '\0');
        for (const auto& [inicio, bytes] : FPartes)
            for (std::uint64_t lugar = inicio; lugar < inicio + bytes.size(); ++lugar)
                if (lugar >= AInicio && lugar - AInicio < lidos) ADestino[lugar - AInicio] = bytes[lugar - inicio];
        Lidos += lidos;
        return lidos;
    }

    mutable std::size_t Lidos = 0;

private:
    TPartes FPartes;
    std::uint64_t FTamanho;
};

/// Asks everything that is ever asked; the version and one text, or "-".
std::string Perguntar(std::span<const char> ABloco) {
    const TBlocoDeVersao bloco(ABloco);
    std::string resposta = "-";
    if (const auto fixa = bloco.ConsultarFixa())
        resposta = std::to_string(fixa->MaisSignificativa) + "." + std::to_string(fixa->MenosSignificativa);
    if (bloco.ConsultarTraducao()) resposta += " t";
    if (const auto texto = bloco.ConsultarTexto(u"041604b0", u"Comments")) {
        resposta += " ";
        for (const char16_t letra : *texto) resposta += static_cast<char>(letra);
    }
    return resposta;
}

const std::string CBloco = Pe::Montar(
    Pe::Raiz({{0, 1, 0, 2}},
             {Pe::Textos({Pe::Tabela(u"041604b0", {Pe::Texto(u"CompanyName", u"x"), Pe::Texto(u"Comments", u"abc")})}),
              Pe::Traducoes({{0x416, 1200}})}));
constexpr const char* CResposta = "1.2 t abc";
/// No folder of resources, table of sections and resource is larger than this.
constexpr std::size_t CMaisQueSePrecisaLer = 6u << 20;

std::string LerArquivo(std::string_view ABytes) {
    const TFonteDeTeste fonte({{0, ABytes}}, ABytes.size());
    const auto bloco = LerRecursoDeVersaoPe(fonte);
    EXPECT_LE(fonte.Lidos, CMaisQueSePrecisaLer);
    return bloco.empty() ? "" : Perguntar(bloco);
}

void Trocar32(std::string& ABytes, std::size_t ALugar, std::uint32_t AValor) {
    std::string bytes;
    Pe::Por32(bytes, AValor);
    ABytes.replace(ALugar, bytes.size(), bytes);
}

TEST(LeitorPe, Truncado) {
    for (const bool de64 : {false, true}) {
        const std::string inteiro = Pe::MontarArquivo(de64, {{0, CBloco}});
        EXPECT_EQ(LerArquivo(inteiro), CResposta);
        const std::size_t fim = Pe::CInicioDaSecao + 0x58 + CBloco.size();
        for (std::size_t tamanho = 0; tamanho < fim; ++tamanho)
            ASSERT_EQ(LerArquivo(std::string_view(inteiro).substr(0, tamanho)), "") << tamanho;
        EXPECT_EQ(LerArquivo(std::string_view(inteiro).substr(0, fim)), CResposta) << "the filling may be missing";
    }
}

TEST(LeitorPe, BlocoTruncadoOuTrocado) {
    for (std::size_t tamanho = 0; tamanho <= CBloco.size(); ++tamanho) {
        const std::vector<char> copia(CBloco.begin(), CBloco.begin() + static_cast<std::ptrdiff_t>(tamanho));
        const std::string resposta = Perguntar(copia);
        EXPECT_TRUE(tamanho == CBloco.size() ? resposta == CResposta : resposta != CResposta) << tamanho;
    }
    for (std::size_t i = 0; i < CBloco.size(); ++i)
        for (const int valor : {0, 1, 0x7F, 0x80, 0xFF}) {
            std::vector<char> copia(CBloco.begin(), CBloco.end());
            copia[i] = static_cast<char>(valor);
            EXPECT_LE(Perguntar(copia).size(), CBloco.size()) << i;
        }
}

TEST(LeitorPe, CadaByteTrocado) {
    Testes::TAcaso sorteio;
    for (const bool de64 : {false, true}) {
        const std::string inteiro = Pe::MontarArquivo(de64, {{0x416, CBloco}, {0x409, CBloco}});
        for (std::size_t i = 0; i < inteiro.size(); ++i)
            for (const unsigned valor : {0u, 1u, 0x7Fu, 0x80u, 0xFFu, static_cast<unsigned>(sorteio() & 0xFF)}) {
                std::string trocado = inteiro;
                trocado[i] = static_cast<char>(valor);
                LerArquivo(trocado);
            }
    }
}

TEST(LeitorPe, Contraditorio) {
    constexpr std::size_t CRaiz = Pe::CInicioDaSecao;
    constexpr std::size_t CSecao32 = 0x40 + 24 + 224;
    const std::pair<const char*, std::vector<std::pair<std::size_t, std::uint32_t>>> casos[] = {
        {"a folder that is its own type", {{CRaiz + 0x14, 0x8000'0000}}},
        {"a name that leads back to the types", {{CRaiz + 0x2C, 0x8000'0000}}},
        {"all three levels are the root",
         {{CRaiz + 0x14, 0x8000'0000}, {CRaiz + 0x10, 1}, {CRaiz + 0x2C, 0x8000'0000}}},
        {"a language that is a folder", {{CRaiz + 0x44, 0x8000'0000}}},
        {"a type that is data", {{CRaiz + 0x14, 0x18}}},
        {"a name that is a text", {{CRaiz + 0x28, 0x8000'0001}}},
        {"a folder of 131,070 entries", {{CRaiz + 0x0C, 0xFFFF'FFFF}, {CRaiz + 0x10, 99}}},
        {"a folder behind the end of the file", {{CRaiz + 0x14, 0xFFFF'FFFF}}},
        {"data behind every section", {{CRaiz + 0x48, 0xFFFF'FFFF}}},
        {"data of 4 GiB", {{CRaiz + 0x4C, 0xFFFF'FFFF}}},
        {"data without bytes", {{CRaiz + 0x4C, 0}}},
        {"data that are the file's own header", {{CRaiz + 0x48, 0}}},
        {"a section that begins behind the end", {{CSecao32 + 20, 0xFFFF'FFFF}}},
        {"a section without bytes", {{CSecao32 + 16, 0}}},
        {"65,535 sections", {{0x44, 0xFFFF'014C}, {CSecao32 + 12, 0xFFFF'0000}}},
        {"no directory of resources", {{0x40 + 24 + 92, 2}}},
        {"the header lies behind the end", {{0x3C, 0xFFFF'FFF0}}},
        {"the header lies on itself", {{0x3C, 0}}},
    };
    const std::string inteiro = Pe::MontarArquivo(false, {{0, CBloco}});
    ASSERT_EQ(LerArquivo(inteiro), CResposta);
    for (const auto& [porque, trocas] : casos) {
        std::string trocado = inteiro;
        for (const auto& [lugar, valor] : trocas) Trocar32(trocado, lugar, valor);
        const std::string resposta = LerArquivo(trocado);
        EXPECT_TRUE(resposta.empty() || resposta == "-") << porque << ": " << resposta;
    }
}

TEST(LeitorPe, AleatorioComMarcasCertas) {
    Testes::TAcaso sorteio;
    const std::string inteiro = Pe::MontarArquivo(true, {{0, CBloco}});
    for (int rodada = 0; rodada < 3000; ++rodada) {
        std::string arquivo = inteiro;
        for (auto n = sorteio() % 40; n > 0; --n) {
            // Most of what is read lies in the headers and in the first bytes of the section.
            const std::size_t faixa = sorteio() % 2 ? 0x1A0 : arquivo.size();
            arquivo[sorteio() % faixa] = static_cast<char>(sorteio());
        }
        LerArquivo(arquivo);
        std::shuffle(arquivo.begin() + 0x200, arquivo.end(), sorteio);
        Perguntar(std::span(arquivo).subspan(0x200));
    }
}

TEST(LeitorPe, QuatroGigabytesNaoSaoLidos) {
    // The headers at the beginning, the section near the end of the 4 GiB.
    constexpr std::uint32_t CLonge = 0xFFFF'0000;
    std::string cabecalhos = Pe::MontarArquivo(false, {{0, CBloco}});
    const std::string secao = cabecalhos.substr(Pe::CInicioDaSecao);
    cabecalhos.resize(Pe::CInicioDaSecao);
    Trocar32(cabecalhos, 0x40 + 24 + 224 + 20, CLonge);

    const TFonteDeTeste fonte({{0, cabecalhos}, {CLonge, secao}}, 1ull << 33);
    EXPECT_EQ(Perguntar(LerRecursoDeVersaoPe(fonte)), CResposta);
    EXPECT_LE(fonte.Lidos, 4096u);
}

}  // namespace
