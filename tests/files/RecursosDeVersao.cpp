#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "files/ApoioArquivos.hpp"
#include "files/ConstrutorPe.hpp"

#include <gtest/gtest.h>

#include <random>

// What files say of themselves, read by the system's own functions on Windows and by the library's reader on Linux: the
// same cases, the same answers.

namespace {

using namespace OryUtils;
using Pe::Raiz;
using Pe::Tabela;
using Pe::Texto;
using Pe::Textos;
using Pe::Traducoes;

/// The version and the texts of a file, a line each.
std::string Ver(const std::u16string& AArquivo) {
    TArquivoInfo info;
    info.SetArquivo(AArquivo);
    std::string visto = ParaUtf8(info.GetVersao()) + "\n";
    for (const auto& item : info.GetItems()) visto += ParaUtf8(item) + "\n";
    return visto;
}

constexpr std::array<unsigned, 4> CVersao{7, 2, 65535, 15};
const Pe::TNo CPortugues = Traducoes({{0x416, 1200}});

Pe::TNo EmPortugues(std::vector<Pe::TNo> ATextos) { return Pe::EmPortugues(CVersao, std::move(ATextos)); }
Pe::TNo ComSobra(Pe::TNo ANo, std::size_t ASobra) {
    ANo.Sobra = ASobra;
    return ANo;
}
/// A resource of one comment, in a table of that name.
Pe::TNo EmOutraTabela(std::u16string_view ATabela, unsigned AIdioma) {
    return Raiz(CVersao, {Textos({Tabela(ATabela, {Texto(u"Comments", u"x")})}), Traducoes({{AIdioma, 1200}})});
}

TEST(RecursosDeVersao, FeitosAMao) {
    const Pe::TNo semUnicode{
        .Chave = u"ProductName", .Texto = false, .Valor = Pe::DeTexto(u"abcd"), .TamanhoDoValor = 4};
    const Pe::TNo umTexto = Textos({Tabela(u"041604b0", {Texto(u"ProductVersion", u"9")})});
    const struct {
        const char* Porque;
        Pe::TNo No;
        std::string Visto;
    } casos[] = {
        {"keys come in the order asked for, whatever that of the file; other keys are not asked for",
         EmPortugues({Texto(u"VersaoMaximaConversao", u"7.1"), Texto(u"OutraChave", u"?"),
                      Texto(u"NaoLiberarPacote", u" True "), Texto(u"FileVersion", u"7.2"),
                      Texto(u"CompanyName", u"Orçamentos & Cia 😀")}),
         "7.2.65535.15\nCompanyName=Orçamentos & Cia 😀\nFileVersion=7.2\nNaoLiberarPacote= True \n"
         "VersaoMaximaConversao=7.1\n"},
        {"only the first translation counts",
         Raiz(CVersao, {Traducoes({{0x416, 1252}, {0x409, 1200}}),
                        Textos({Tabela(u"040904b0", {Texto(u"Comments", u"english")}),
                                Tabela(u"041604e4", {Texto(u"Comments", u"português")})})}),
         "7.2.65535.15\nComments=português\n"},
        {"four digits of language make a group of five", EmOutraTabela(u"0100904b0", 0x1009),
         "7.2.65535.15\nComments=x\n"},
        {"0 is the digit 0, not padded", EmOutraTabela(u"0004b0", 0), "7.2.65535.15\nComments=x\n"},
        {"no fixed part: no version, but texts", Raiz({}, {umTexto, CPortugues}), "\nProductVersion=9\n"},
        {"no translation: no texts, but a version", Raiz(CVersao, {umTexto}), "7.2.65535.15\n"},
        {"no children at all", Raiz(CVersao, {}), "7.2.65535.15\n"},
        {"letter case of tables and keys does not matter; the key is written as asked for; of two the first",
         Raiz(CVersao,
              {Textos({Tabela(u"041604B0", {Texto(u"COMMENTS", u"1"), Texto(u"Comments", u"2")})}), CPortugues}),
         "7.2.65535.15\nComments=1\n"},
        {"empty values, with and without their end",
         EmPortugues({Texto(u"CompanyName", u""), {.Chave = u"Comments"}, Texto(u"ProductName", u"x")}),
         "7.2.65535.15\nCompanyName=\nProductName=x\nComments=\n"},
        {"a value ends at its first 0, or where its length says",
         EmPortugues({Texto(u"CompanyName", std::u16string_view(u"a\0b", 3)), Texto(u"ProductName", u"abcdef", 3)}),
         "7.2.65535.15\nCompanyName=a\nProductName=abc\n"},
        {"lengths in bytes, as some resource compilers count them, end at the 0",
         EmPortugues({Texto(u"CompanyName", u"abc", 8), semUnicode}),
         "7.2.65535.15\nCompanyName=abc\nProductName=abcd\n"},
        {"filling counted in the lengths",
         Raiz(CVersao, {ComSobra(Textos({ComSobra(Tabela(u"041604b0", {ComSobra(Texto(u"CompanyName", u"ab"), 7),
                                                                       ComSobra(Texto(u"ProductName", u"c"), 2)}),
                                                  6)}),
                                 4),
                        ComSobra(CPortugues, 8)}),
         "7.2.65535.15\nCompanyName=ab\nProductName=c\n"},
    };
    const TPastaTemporaria pasta;
    for (const auto& caso : casos)
        for (const bool de64 : {false, true})
            EXPECT_EQ(Ver(pasta.Gravar(u"a.exe", Pe::MontarArquivo(de64, {{0x416, Montar(caso.No)}}))), caso.Visto)
                << caso.Porque << (de64 ? " (64 bits)" : " (32 bits)");
}

// On Windows the system's functions meet them first; what they then say of a block may lie outside of it.
TEST(RecursosDeVersao, Quebrados) {
    const std::string bloco = Montar(EmPortugues({Texto(u"CompanyName", u"x"), Texto(u"Comments", u"abc")}));
    const unsigned semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    const TPastaTemporaria pasta;
    const auto ler = [&](const std::string& ABloco) {
        std::string visto = Ver(pasta.Gravar(u"a.exe", Pe::MontarArquivo(true, {{0, ABloco}})));
        EXPECT_LE(visto.size(), 2 * bloco.size());
        return visto;
    };
    EXPECT_EQ(ler(bloco), "7.2.65535.15\nCompanyName=x\nComments=abc\n");
    for (std::size_t tamanho = 0; tamanho < bloco.size(); tamanho += 2) ler(bloco.substr(0, tamanho));
    for (int rodada = 0; rodada < 300; ++rodada) {
        std::string trocado = bloco;
        for (auto n = 1 + sorteio() % 8; n > 0; --n) trocado[sorteio() % trocado.size()] = static_cast<char>(sorteio());
        ler(trocado);
    }
}

TEST(RecursosDeVersao, DeVariosIdiomas) {
    const auto bloco = [](unsigned AVersao) { return Pe::Montar(Raiz({{AVersao, 0, 0, 0}}, {})); };
    const struct {
        const char* Porque;
        unsigned Um, Dois, Tres;
        const char* Visto;
    } casos[] = {
        {"no language", 0, 0x409, 0x40C, "1.0.0.0\n"},
        {"English of the United States", 0x407, 0x409, 0x40C, "2.0.0.0\n"},
        {"the first one", 0x407, 0x40C, 0x410, "1.0.0.0\n"},
    };
    const TPastaTemporaria pasta;
    for (const auto& caso : casos) {
        const Pe::TBlocos blocos{{caso.Um, bloco(1)}, {caso.Dois, bloco(2)}, {caso.Tres, bloco(3)}};
        EXPECT_EQ(Ver(pasta.Gravar(u"a.exe", Pe::MontarArquivo(true, blocos))), caso.Visto) << caso.Porque;
    }
}

TEST(RecursosDeVersao, DoCompiladorDeRecursos) {
    const std::filesystem::path pasta(ORY_RECURSOS_DE_TESTE);
    for (const char* sufixo : {"64.dll", "64.exe", "32.dll", "32.exe"}) {
        SCOPED_TRACE(sufixo);
        const auto arquivo = [&](const std::string& ANome) { return (pasta / (ANome + sufixo)).u16string(); };
        EXPECT_EQ(Ver(arquivo("completo")),
                  "10.20.300.65535\nCompanyName=Orçamentos União Ltda.\nFileDescription=Módulo de orçamentos\n"
                  "FileVersion=10.20\nInternalName=orcamentos\nLegalCopyright=© 2026\nLegalTrademarks=marca\n"
                  "OriginalFilename=o.exe\nProductName=Orçamentos\nProductVersion=10\n"
                  "Comments=primeira linha\r\nsegunda linha\nMinVersionDataBase=10.19.0.0\nNaoLiberarPacote=True\n"
                  "VersaoMaximaConversao=9.9.9.9\n");
        EXPECT_EQ(Ver(arquivo("quatro_digitos")), "1.2.3.4\n");
        EXPECT_EQ(Ver(arquivo("pagina_utf8")), "0.0.0.1\n");
    }
    TArquivoInfo info;
    info.SetArquivo((pasta / "completo64.dll").u16string());
    std::u16string propriedades;
    for (const auto& valor :
         {info.GetNomeCompanhia(), info.GetDescricao(), info.GetNomeInterno(), info.GetLegalCopyright(),
          info.GetLegalTrademarks(), info.GetNomeOriginal(), info.GetNomeProduto(), info.GetVersaoProduto(),
          info.GetComentarios(), info.GetVersaoMinimaBanco(), info.GetVersaoMaximaConversao(), info.GetNome(),
          info.BuscarVersaoArquivo(), GetVersaoArquivo(info.GetArquivo())})
        propriedades += valor + u"|";
    EXPECT_EQ(propriedades,
              u"Orçamentos União Ltda.|Módulo de orçamentos|orcamentos|© 2026|marca|o.exe|Orçamentos|10|"
              u"primeira linha\r\nsegunda linha|10.19.0.0|9.9.9.9|completo64.dll|10.20.300.65535|10.20.300.65535|");
    EXPECT_TRUE(info.GetNaoLiberarPacote());
}

TEST(RecursosDeVersao, ListaDeTextos) {
    TArquivoInfo info, outra;
    EXPECT_FALSE(info.GetNaoLiberarPacote());
    info.Adiciona(u"NaoLiberarPacote", u"true");
    EXPECT_FALSE(info.GetNaoLiberarPacote()) << "letter case of the flag matters";
    outra.Adiciona(u"NaoLiberarPacote", u" True\t");
    EXPECT_TRUE(outra.GetNaoLiberarPacote()) << "blanks around it are allowed";
    info.Adiciona(u"Comments", u"a=b");
    info.Adiciona(u"COMMENTS", u"c");
    EXPECT_EQ(info.Localiza(u"comments"), u"a=b") << "the first line of that name, behind its first =";
    EXPECT_EQ(info.Localiza(u"Comment"), u"");
    outra = info;
    info.Clear();
    EXPECT_TRUE(info.GetItems().empty());
    EXPECT_EQ(outra.GetItems().size(), 3u);
}

std::u16string GAviso;

TEST(RecursosDeVersao, ArquivosSemRecurso) {
    const TPastaTemporaria pasta;
    TArquivoInfo info;
    const std::string bloco = Montar(EmPortugues({Texto(u"Comments", u"x")}));
    info.SetArquivo(pasta.Gravar(u"a.exe", Pe::MontarArquivo(true, {{0, bloco}})));
    EXPECT_EQ(info.GetComentarios(), u"x");
    for (const auto& nome : {pasta.Gravar(u"texto.txt", "MZ"), pasta.Gravar(u"vazio.exe", ""), pasta.Nome(u"falta.exe"),
                             pasta.Caminho().u16string(), std::u16string(u"kernel32.dll"),
                             pasta.Nome(std::u16string_view(u"a.exe\0b", 7))}) {
        info.SetArquivo(nome);
        EXPECT_TRUE(info.GetItems().empty()) << ParaUtf8(nome);
        EXPECT_EQ(info.GetVersao(), u"") << ParaUtf8(nome);
    }
    const TCosturaInterface antes = CosturaInterface();
    CosturaInterface().Alerta = [](std::u16string_view AMensagem) { GAviso = AMensagem; };
    EXPECT_THROW(info.SetArquivo(u" \t"), EAbort);
    CosturaInterface() = antes;
    EXPECT_EQ(GAviso, u"Não foi possível obter as configurações do arquivo.\r\nA propriedade <<Arquivo>> está vazia.");
    EXPECT_EQ(info.GetArquivo(), u" \t");
    EXPECT_EQ(TOryUtilsFiles::BuscarVersaoArquivo(u" \t"), u"");
}

TEST(RecursosDeVersao, VersaoDeIniEHtml) {
    const TPastaTemporaria pasta;
    const std::string ini = "[Outra]\r\nNumero=0\r\n[Versao]\r\nNumero = 3.4 \r\n";
    for (const auto* nome : {u"pagina.HTML", u"a.ini", u"estilo.css"}) {
        TArquivoInfo info;
        info.SetArquivo(pasta.Gravar(nome, ini));
        const bool ehIni = nome != std::u16string_view(u"estilo.css");  // a page's style, but no INI
        EXPECT_EQ(info.GetVersao(), ehIni ? u"3.4" : u"") << ParaUtf8(nome);
        EXPECT_EQ(GetVersaoArquivo(info.GetArquivo()), ehIni ? u"3.4" : u"");
        EXPECT_EQ(info.BuscarVersaoArquivo(), u"") << "it has no resource";
        EXPECT_EQ(info.BuscarVersaoArquivoIni(), u"3.4") << "asked for, whatever the extension";
        EXPECT_EQ(GetVersionFromINI(info.GetArquivo()), u"3.4");
    }
    EXPECT_EQ(GetVersionFromINI(pasta.Nome(u"falta.ini")), u"");
}

}  // namespace
