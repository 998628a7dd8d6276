#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "files/ApoioArquivos.hpp"
#include "files/ConstrutorPe.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

// What files say of themselves, read by the system's own functions on Windows and by the library's reader on Linux: the
// same cases, the same answers.

namespace {

using namespace OryUtils;
using TLista = std::vector<std::u16string>;

std::string ParaMostrar(const TLista& ALista) {
    std::string texto;
    for (const auto& item : ALista) texto += "\n  " + ParaUtf8(item);
    return texto;
}

void Conferir(const std::u16string& AArquivo, std::u16string_view AVersao, const TLista& AItens,
              const std::string& APorque) {
    TArquivoInfo info;
    info.SetArquivo(AArquivo);
    EXPECT_EQ(ParaMostrar(info.GetItems()), ParaMostrar(AItens)) << APorque;
    EXPECT_EQ(ParaUtf8(info.GetVersao()), ParaUtf8(AVersao)) << APorque;
}

using Pe::Raiz;
using Pe::Tabela;
using Pe::Texto;
using Pe::Textos;
using Pe::Traducoes;

constexpr std::array<unsigned, 4> CVersao{7, 2, 65535, 15};
const Pe::TNo CPortugues = Traducoes({{0x416, 1200}});

Pe::TNo ComTamanho(Pe::TNo ANo, std::size_t ATamanho) {
    ANo.TamanhoDoValor = ATamanho;
    return ANo;
}
Pe::TNo ComSobra(Pe::TNo ANo, std::size_t ASobra) {
    ANo.Sobra = ASobra;
    return ANo;
}
Pe::TNo Binario(Pe::TNo ANo) {
    ANo.TamanhoDoValor = ANo.Valor.size() / 2;
    ANo.Texto = false;
    return ANo;
}

/// A resource in Portuguese with those texts.
Pe::TNo EmPortugues(std::vector<Pe::TNo> ATextos) {
    return Raiz(CVersao, {Textos({Tabela(u"041604b0", std::move(ATextos))}), CPortugues});
}
/// One of one comment, in a table of that name.
Pe::TNo EmOutraTabela(std::u16string_view ATabela, unsigned AIdioma) {
    return Raiz(CVersao, {Textos({Tabela(ATabela, {Texto(u"Comments", u"x")})}), Traducoes({{AIdioma, 1200}})});
}

TEST(RecursosDeVersao, FeitosAMao) {
    const struct {
        const char* Porque;
        Pe::TNo No;
        TLista Itens;
        std::u16string_view Versao = u"7.2.65535.15";
    } casos[] = {
        {"keys come in the order asked for, whatever that of the file; other keys are not asked for",
         EmPortugues({Texto(u"VersaoMaximaConversao", u"7.1"), Texto(u"OutraChave", u"?"),
                      Texto(u"NaoLiberarPacote", u" True "), Texto(u"FileVersion", u"7.2"),
                      Texto(u"CompanyName", u"Orçamentos & Cia 😀")}),
         {u"CompanyName=Orçamentos & Cia 😀", u"FileVersion=7.2", u"NaoLiberarPacote= True ",
          u"VersaoMaximaConversao=7.1"}},
        {"only the first translation counts",
         Raiz(CVersao, {Traducoes({{0x416, 1252}, {0x409, 1200}}),
                        Textos({Tabela(u"040904b0", {Texto(u"Comments", u"english")}),
                                Tabela(u"041604e4", {Texto(u"Comments", u"português")})})}),
         {u"Comments=português"}},
        {"four digits of language make a group of five: not found", EmOutraTabela(u"100904b0", 0x1009), {}},
        {"the same language found under the name that is asked for",
         EmOutraTabela(u"0100904b0", 0x1009),
         {u"Comments=x"}},
        {"0 is the digit 0, not padded", EmOutraTabela(u"0004b0", 0), {u"Comments=x"}},
        {"no fixed part: no version, but texts",
         Raiz({}, {Textos({Tabela(u"041604b0", {Texto(u"ProductVersion", u"9")})}), CPortugues}),
         {u"ProductVersion=9"},
         u""},
        {"no translation: no texts, but a version",
         Raiz(CVersao, {Textos({Tabela(u"041604b0", {Texto(u"ProductVersion", u"9")})})}),
         {}},
        {"no children at all", Raiz(CVersao, {}), {}},
        {"letter case of tables and keys does not matter; the key is written as asked for; of two the first",
         Raiz(CVersao,
              {Textos({Tabela(u"041604B0", {Texto(u"COMMENTS", u"1"), Texto(u"Comments", u"2")})}), CPortugues}),
         {u"Comments=1"}},
        {"empty values, with and without their end",
         EmPortugues({Texto(u"CompanyName", u""), {.Chave = u"Comments"}, Texto(u"ProductName", u"x")}),
         {u"CompanyName=", u"ProductName=x", u"Comments="}},
        {"a value ends at its first 0, or where its length says",
         EmPortugues(
             {Texto(u"CompanyName", std::u16string_view(u"a\0b", 3)), ComTamanho(Texto(u"ProductName", u"abcdef"), 3)}),
         {u"CompanyName=a", u"ProductName=abc"}},
        {"lengths in bytes, as some resource compilers count them, end at the 0",
         EmPortugues({ComTamanho(Texto(u"CompanyName", u"abc"), 8), Binario(Texto(u"ProductName", u"abcd"))}),
         {u"CompanyName=abc", u"ProductName=abcd"}},
        {"filling counted in the lengths",
         Raiz(CVersao, {ComSobra(Textos({ComSobra(Tabela(u"041604b0", {ComSobra(Texto(u"CompanyName", u"ab"), 7),
                                                                       ComSobra(Texto(u"ProductName", u"c"), 2)}),
                                                  6)}),
                                 4),
                        ComSobra(CPortugues, 8)}),
         {u"CompanyName=ab", u"ProductName=c"}},
    };
    const TPastaTemporaria pasta;
    for (const auto& caso : casos)
        for (const bool de64 : {false, true})
            Conferir(pasta.Gravar(de64 ? u"a.exe" : u"a.dll", Pe::MontarArquivo(de64, {{0x416, Montar(caso.No)}})),
                     caso.Versao, caso.Itens, std::string(caso.Porque) + (de64 ? " (64 bits)" : " (32 bits)"));
}

// On Windows the system's functions meet them first; what they then say of a block may lie outside of it.
TEST(RecursosDeVersao, Quebrados) {
    const std::string bloco = Montar(EmPortugues({Texto(u"CompanyName", u"x"), Texto(u"Comments", u"abc")}));
    const unsigned semente = std::random_device{}();
    SCOPED_TRACE(semente);
    std::mt19937 sorteio(semente);
    const TPastaTemporaria pasta;
    const auto ler = [&](const std::string& ABloco) {
        TArquivoInfo info;
        info.SetArquivo(pasta.Gravar(u"a.exe", Pe::MontarArquivo(true, {{0, ABloco}})));
        for (const auto& item : info.GetItems()) EXPECT_LE(item.size(), bloco.size());
        return info.GetVersao();
    };
    EXPECT_EQ(ler(bloco), u"7.2.65535.15");
    for (std::size_t tamanho = 0; tamanho < bloco.size(); tamanho += 2) ler(bloco.substr(0, tamanho));
    for (int rodada = 0; rodada < 300; ++rodada) {
        std::string trocado = bloco;
        for (auto n = 1 + sorteio() % 8; n > 0; --n) trocado[sorteio() % trocado.size()] = static_cast<char>(sorteio());
        ler(trocado);
    }
}

TEST(RecursosDeVersao, DeVariosIdiomas) {
    const auto bloco = [](unsigned AVersao) { return Pe::Montar(Raiz({{AVersao, 0, 0, 0}}, {})); };
    const TPastaTemporaria pasta;
    const auto conferir = [&](std::array<unsigned, 3> AIdiomas, std::u16string_view AVersao, const char* APorque) {
        const auto [um, dois, tres] = AIdiomas;
        Conferir(pasta.Gravar(u"a.exe", Pe::MontarArquivo(true, {{um, bloco(1)}, {dois, bloco(2)}, {tres, bloco(3)}})),
                 AVersao, {}, APorque);
    };
    conferir({0, 0x409, 0x40C}, u"1.0.0.0", "no language");
    conferir({0x407, 0x409, 0x40C}, u"2.0.0.0", "English of the United States");
    conferir({0x407, 0x40C, 0x410}, u"1.0.0.0", "the first one");
}

TEST(RecursosDeVersao, DoCompiladorDeRecursos) {
    const std::filesystem::path pasta(ORY_RECURSOS_DE_TESTE);
    for (const std::u16string sufixo : {u"64.dll", u"64.exe", u"32.dll", u"32.exe"}) {
        const std::string porque = ParaUtf8(sufixo);
        const auto arquivo = [&](const std::u16string& ANome) { return (pasta / (ANome + sufixo)).u16string(); };
        Conferir(arquivo(u"completo"), u"10.20.300.65535",
                 {u"CompanyName=Orçamentos União Ltda.", u"FileDescription=Módulo de orçamentos", u"FileVersion=10.20",
                  u"InternalName=orcamentos", u"LegalCopyright=© 2026", u"LegalTrademarks=", u"OriginalFilename=o.exe",
                  u"ProductName=Orçamentos", u"ProductVersion=10", u"Comments=primeira linha\r\nsegunda linha",
                  u"MinVersionDataBase=10.19.0.0", u"NaoLiberarPacote=True", u"VersaoMaximaConversao=9.9.9.9"},
                 porque);
        Conferir(arquivo(u"quatro_digitos"), u"1.2.3.4", {}, porque);
        Conferir(arquivo(u"pagina_utf8"), u"0.0.0.1", {}, porque);

        TArquivoInfo info;
        info.SetArquivo(arquivo(u"completo"));
        EXPECT_TRUE(info.GetNaoLiberarPacote());
        EXPECT_EQ(info.GetNome(), u"completo" + sufixo);
        EXPECT_EQ(TOryUtilsFiles::BuscarVersaoArquivo(info.GetArquivo()), u"10.20.300.65535");
    }
}

TEST(RecursosDeVersao, CadaPropriedadeTemASuaChave) {
    constexpr struct {
        std::u16string_view Chave;
        std::u16string (TArquivoInfo::*Buscar)() const;
    } CPropriedades[] = {
        {u"CompanyName", &TArquivoInfo::GetNomeCompanhia},
        {u"FileDescription", &TArquivoInfo::GetDescricao},
        {u"InternalName", &TArquivoInfo::GetNomeInterno},
        {u"LegalCopyright", &TArquivoInfo::GetLegalCopyright},
        {u"LegalTrademarks", &TArquivoInfo::GetLegalTrademarks},
        {u"OriginalFilename", &TArquivoInfo::GetNomeOriginal},
        {u"ProductName", &TArquivoInfo::GetNomeProduto},
        {u"ProductVersion", &TArquivoInfo::GetVersaoProduto},
        {u"Comments", &TArquivoInfo::GetComentarios},
        {u"MinVersionDataBase", &TArquivoInfo::GetVersaoMinimaBanco},
        {u"VersaoMaximaConversao", &TArquivoInfo::GetVersaoMaximaConversao},
    };
    TArquivoInfo info;
    for (const auto& propriedade : CPropriedades) {
        EXPECT_EQ((info.*propriedade.Buscar)(), u"") << ParaUtf8(propriedade.Chave);
        info.Adiciona(propriedade.Chave, u"o texto de " + std::u16string(propriedade.Chave));
    }
    for (const auto& propriedade : CPropriedades)
        EXPECT_EQ((info.*propriedade.Buscar)(), u"o texto de " + std::u16string(propriedade.Chave));
    EXPECT_FALSE(info.GetNaoLiberarPacote());
    info.Adiciona(u"NaoLiberarPacote", u" True\t");
    EXPECT_TRUE(info.GetNaoLiberarPacote()) << "blanks around it are allowed";
}

TEST(RecursosDeVersao, ListaDeTextos) {
    TArquivoInfo info;
    info.Adiciona(u"NaoLiberarPacote", u"true");
    EXPECT_FALSE(info.GetNaoLiberarPacote()) << "letter case of the flag matters";
    info.Adiciona(u"Comments", u"a=b");
    info.Adiciona(u"COMMENTS", u"c");
    EXPECT_EQ(info.Localiza(u"comments"), u"a=b") << "the first line of that name, behind its first =";
    EXPECT_EQ(info.Localiza(u"Comment"), u"");
    const TArquivoInfo copia = info;
    info.Clear();
    EXPECT_TRUE(info.GetItems().empty());
    EXPECT_EQ(copia.GetItems().size(), 3u);
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
    for (const auto* nome : {u"pagina.HTML", u"a.ini"}) {
        TArquivoInfo info;
        info.SetArquivo(pasta.Gravar(nome, ini));
        EXPECT_EQ(info.GetVersao(), u"3.4");
        EXPECT_EQ(GetVersaoArquivo(info.GetArquivo()), u"3.4");
        EXPECT_EQ(info.BuscarVersaoArquivo(), u"") << "it has no resource";
    }
    TArquivoInfo estilo;
    estilo.SetArquivo(pasta.Gravar(u"estilo.css", ini));
    EXPECT_EQ(estilo.GetVersao(), u"") << "a page's style, but no INI";
    EXPECT_EQ(estilo.BuscarVersaoArquivoIni(), u"3.4") << "asked for";
    EXPECT_EQ(GetVersionFromINI(pasta.Nome(u"estilo.css")), u"3.4") << "whatever the extension";
    EXPECT_EQ(GetVersionFromINI(pasta.Nome(u"falta.ini")), u"");
}

}  // namespace
