#include "oryutils/characters/Utf.hpp"
#include "oryutils/forms/console/RespostaDeLista.hpp"
#include "oryutils/forms/console/TextoDoTerminal.hpp"
#include "oryutils/forms/console/ToolkitConsole.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

namespace OryUtils {
namespace {

// A user who types these lines. An empty optional is silence: the clock runs until the limit.
struct TConversaEscrita final : TConversa {
    bool Terminal = true;
    int Colunas = 0;
    std::vector<std::optional<std::u16string>> Linhas;
    std::string Escrito;
    std::chrono::milliseconds Instante{0};
    bool Eco = true;
    int SemEco = 0;  ///< lines typed unseen

    bool PodeConversar() override { return Terminal; }
    int GetColunas() override { return Colunas; }
    void Escrever(std::u16string_view ATexto) override { Escrito += ParaUtf8(ATexto); }
    std::chrono::milliseconds GetInstante() override { return Instante; }
    void MostrarDigitado(bool AMostrar) override { Eco = AMostrar; }
    Interno::TLeituraDeLinha LerLinha(std::optional<std::chrono::milliseconds> ALimite,
                                      std::u16string& ALinha) override {
        if (Linhas.empty()) return Interno::llFim;
        const auto linha = Linhas.front();
        Linhas.erase(Linhas.begin());
        if (!linha) {
            Instante += ALimite.value_or(std::chrono::milliseconds(0));
            return Interno::llTempo;
        }
        ALinha = *linha;
        SemEco += !Eco;
        return Interno::llLinha;
    }
};

struct TPergunta : TFormulario {
    TRotulo& Mensagem = Adicionar<TRotulo>();
    TBotao& Sim = Adicionar<TBotao>();
    TBotao& Nao = Adicionar<TBotao>();
    TPergunta() {
        SetTitulo(u"Confirmação");
        Mensagem.SetNome(u"Message");
        Mensagem.SetTexto(u"Excluir?\r\nNão há volta.");
        Sim.SetTexto(u"&Sim");
        Sim.SetModalResult(mrYes);
        Nao.SetTexto(u"&Não p/ Todos");
        Nao.SetModalResult(mrNoToAll);
        SetControleAtivo(&Nao);
    }
};

using TLinhas = std::vector<std::optional<std::u16string>>;

TEST(Console, RespostasDeUmaConfirmacao) {
    const struct {
        bool Terminal;
        TLinhas Linhas;
        int Esperado;
        const char* Porque;
    } casos[] = {
        {true, {u"s"}, mrYes, "the letter"},
        {true, {u" S "}, mrYes, "in either case, blanks aside"},
        {true, {u"NÃO P/ TODOS"}, mrNoToAll, "the caption"},
        {true, {u"nao p/ todos"}, mrNoToAll, "without its accents"},
        {true, {u""}, mrNoToAll, "an empty line presses what has the focus"},
        {true, {u"talvez", u"x", u"sim"}, mrYes, "asked until understood"},
        {true, {u"talvez"}, mrCancel, "end of input"},
        {false, {u"s"}, mrCancel, "nobody is there to answer"},
    };
    for (const auto& c : casos) {
        TConversaEscrita conversa;
        conversa.Terminal = c.Terminal;
        conversa.Linhas = c.Linhas;
        TPergunta f;
        EXPECT_EQ(TToolkitConsole(conversa).ExecutarModal(f), c.Esperado) << c.Porque;
        EXPECT_EQ(conversa.Escrito.find("Confirmação: Excluir?\nNão há volta.\n"), 0u) << conversa.Escrito;
        EXPECT_EQ(conversa.Escrito.find("[S]im / [N]ão p/ Todos [Não p/ Todos]: ") != std::string::npos, c.Terminal);
        EXPECT_EQ(f.GetJanela(), nullptr);
    }
}

TEST(Console, MensagemDeUmBotaoNaoEspera) {
    TConversaEscrita conversa;
    TFormulario f;
    f.SetTitulo(u"Aviso");
    f.Adicionar<TRotulo>().SetTexto(u"CNPJ inválido. Verifique.");
    f.Adicionar<TBotao>().SetModalResult(mrOk);
    EXPECT_EQ(TToolkitConsole(conversa).ExecutarModal(f), mrOk);
    EXPECT_EQ(conversa.Escrito, "Aviso: CNPJ inválido. Verifique.\n");
}

TEST(Console, OAndamentoReescreveUmaLinhaOuEscreveVarias) {
    const struct {
        int Colunas;
        const char* Esperado;
    } casos[] = {
        // Shorter lines wipe longer ones out; a line never fills the terminal.
        {12, "Cópia\n\rLendo\rLendo 7%\rUm texto...\rUm t... 19%\ra?b 20%    \ra?b 30%\n"},
        {0, "Cópia\nLendo\nLendo 7%\nUm texto comprido\nUm texto comprido 19%\na?b 20%\na?b 30%\n"},
    };
    for (const auto& c : casos) {
        TConversaEscrita conversa;
        conversa.Colunas = c.Colunas;
        TToolkitConsole toolkit(conversa);
        TFormulario f;
        f.SetTitulo(u"Cópia");
        auto& barra = f.Adicionar<TProgresso>();
        barra.SetTexto(u"Lendo");
        auto exibicao = toolkit.Exibir(f);
        const auto mostrar = [&](double APercentual, std::u16string_view ATexto) {
            barra.SetPercentual(APercentual);
            barra.SetTexto(ATexto);
            toolkit.ProcessarMensagens();
            toolkit.ProcessarMensagens();  // nothing new
        };
        mostrar(7.9, u"Lendo");
        mostrar(-1, u"Um texto comprido");
        mostrar(19, u"Um texto comprido");
        mostrar(20,
                u"a\x1B"
                u"b");
        barra.SetPercentual(30);  // the last state stays
        exibicao.reset();
        toolkit.ProcessarMensagens();
        EXPECT_EQ(conversa.Escrito, c.Esperado);
        EXPECT_EQ(f.GetJanela(), nullptr);
    }
}

TEST(Console, OpcoesChecagemETexto) {
    TConversaEscrita conversa;
    TPergunta f;
    auto& grupo = f.Adicionar<TGrupoOpcoes>();
    grupo.AdicionarItem(u"Uma");
    grupo.AdicionarItem(u"Outra");
    auto& caixa = f.Adicionar<TCaixaChecagem>();
    auto& edicao = f.Adicionar<TCaixaEdicao>();
    auto& proposta = f.Adicionar<TCaixaEdicao>();
    proposta.SetTexto(u"proposto");
    conversa.Linhas = {u"3", u"2", u"sim", u"São Paulo", u"\"\"", u"s"};
    EXPECT_EQ(TToolkitConsole(conversa).ExecutarModal(f), mrYes);
    EXPECT_EQ(proposta.GetTexto(), u"");
    EXPECT_EQ(grupo.GetIndice(), 1);
    EXPECT_TRUE(caixa.GetMarcada());
    EXPECT_EQ(edicao.GetTexto(), u"São Paulo");
}

TEST(Console, SenhaLinhasELista) {
    TConversaEscrita conversa;
    TPergunta f;
    auto& auxiliar = f.Adicionar<TCaixaEdicao>();
    auxiliar.SetAuxiliar(true);
    auto& senha = f.Adicionar<TCaixaEdicao>();
    senha.SetSenha(true);
    senha.SetTexto(u"oculta");
    auto& linhas = f.Adicionar<TMemorando>();
    auto& mantidas = f.Adicionar<TMemorando>();
    mantidas.SetTexto(u"ficam");
    auto& lido = f.Adicionar<TMemorando>();
    lido.SetSomenteLeitura(true);
    auto& lista = f.Adicionar<TListaEscolha>();
    lista.SetItens({u"Santos", u"Bauru"});
    conversa.Linhas = {u" s1 ", u"um", u"", u" dois", u".", u".", u"bau", u"s"};
    EXPECT_EQ(TToolkitConsole(conversa).ExecutarModal(f), mrYes);
    EXPECT_EQ(senha.GetTexto(), u" s1 ") << "blanks count";
    EXPECT_EQ(conversa.SemEco, 1) << "one line was typed unseen";
    EXPECT_EQ(conversa.Escrito.find("oculta"), std::string::npos);
    EXPECT_EQ(linhas.GetTexto(), u"um\r\n\r\n dois");
    EXPECT_EQ(mantidas.GetTexto(), u"ficam");
    EXPECT_EQ(lista.GetEscolhidos(), std::vector{1});
    EXPECT_NE(conversa.Escrito.find("  1. Santos\n  2. Bauru\n"), std::string::npos);
}

TEST(Console, OQueUmBotaoRecusaEhPerguntadoDeNovo) {
    TConversaEscrita conversa;
    TPergunta f;
    auto& caixa = f.Adicionar<TCaixaEdicao>();
    struct TRecusa {
        TCaixaEdicao& Caixa;
        void Conferir(TObjeto*) {
            if (Caixa.GetTexto() == u"bom") return;
            Caixa.ReceberFoco();
            Abort();
        }
    } recusa{caixa};
    f.Sim.OnClick = TEvento<TObjeto*>::De<&TRecusa::Conferir>(recusa);
    conversa.Linhas = {u"mau", u"s", u"bom", u"s"};
    EXPECT_EQ(TToolkitConsole(conversa).ExecutarModal(f), mrYes);
    EXPECT_NE(conversa.Escrito.find("[mau] (Enter mantém, \"\" esvazia) > "), std::string::npos) << conversa.Escrito;
}

TEST(Console, RespostasDeUmaLista) {
    const std::vector<std::u16string> itens{u"São Paulo", u"Santos", u"Ribeirão, do Sul", u"10", u"Santo", u"Rio"};
    const struct {
        bool Varios;
        const char16_t* Resposta;
        std::vector<int> Esperado;  ///< empty: asked again
        const char* Porque;
    } casos[] = {
        {false, u"2", {1}, "by its number"},
        {false, u"10", {3}, "no such number, but such a text"},
        {false, u"0", {3}, "a part of one text alone"},
        {false, u"sao", {0}, "case and accents aside"},
        {false, u"SANTO", {4}, "the whole text goes before a part of another"},
        {false, u"sant", {}, "a part of two"},
        {false, u"lua", {}, ""},
        {false, u"1,2", {}, "only one"},
        {false, u"ribeirão, do sul", {2}, ""},
        {true, u"ribeirão, do sul", {2}, "the comma is the item's own"},
        {true, u"6, sao ,2", {0, 1, 5}, "several, in the order of the list"},
        {true, u"2-4,1", {0, 1, 2, 3}, "a row of them"},
        {true, u"4-2", {}, ""},
        {true, u"2,lua", {}, "nothing is taken in part"},
    };
    for (const auto& c : casos) {
        const auto lida = Interno::LerRespostaDeLista(itens, c.Varios, c.Resposta);
        EXPECT_EQ(lida.Escolhidos, c.Esperado) << ParaUtf8(c.Resposta) << ' ' << c.Porque;
        EXPECT_EQ(lida.Recusa.empty(), !c.Esperado.empty()) << ParaUtf8(lida.Recusa);
    }
    EXPECT_EQ(ParaUtf8(Interno::LerRespostaDeLista(itens, false, u"sant").Recusa),
              "Há mais de um:\n  2. Santos\n  5. Santo\n");
}

TEST(Console, EscolhaDeArquivosEPastas) {
    namespace fs = std::filesystem;
    const fs::path pasta = fs::path(testing::TempDir()) / "ory-seletor-console";
    fs::remove_all(pasta);
    fs::create_directories(pasta / "sub");
    for (const char* nome : {"a.txt", "b.txt"}) std::ofstream(pasta / nome) << "1";
    const struct {
        TSelecaoDeCaminho Selecao;
        TLinhas Linhas;
        const char* Esperado;
        const char* NaTela;
        const char* Porque;
    } casos[] = {
        {scAbrir,
         {u"c.txt", u"a.txt"},
         "a.txt",
         "Arquivo não encontrado.\nArquivo, Textos *.txt (vazio cancela): ",
         ""},
        {scAbrir, {u""}, "", "", "cancelled"},
        {scAbrirVarios, {u"a.txt", u"sub", u"./b.txt", u""}, "a.txt b.txt", "um por linha", "a folder is no file"},
        {scAbrirVarios, {u""}, "", "", "none"},
        {scPasta, {u"a.txt", u"sub"}, "sub", "Pasta não encontrada.", ""},
        {scSalvar, {u""}, "nota.txt", "[nota.txt] (Enter aceita, \"\" cancela): ", "the name suggested"},
        {scSalvar, {u"\"\""}, "", "", "cancelled"},
        {scSalvar, {u"outra"}, "outra.txt", "", "with the usual extension"},
        {scSalvar, {u"a.txt", u"n", u"a.txt", u"s"}, "a.txt", "a.txt já existe. Deseja substituí-lo? (s/n) [n]: ", ""},
        {scSalvar, {u"a", u"", u"b.log"}, "b.log", "a.txt já existe.", "also when the extension makes it the same"},
        {scSalvar, {u"longe/x.txt", u"sub.d/", u"novo.txt"}, "novo.txt", "Pasta não encontrada.", "no such folder"},
        {scSalvar, {u"a.txt"}, "", "", "end of input is no agreement"},
    };
    for (const auto& c : casos) {
        TConversaEscrita conversa;
        conversa.Linhas = c.Linhas;
        TToolkitConsole toolkit(conversa);
        std::string escolhidos;
        for (const auto& caminho : toolkit.EscolherCaminhos({.Selecao = c.Selecao,
                                   .PastaInicial = pasta.u16string(),
                                   .NomeSugerido = u"nota.txt",
                                   .ExtensaoPadrao = u"txt",
                                   .Filtros = {{u"Textos", u"*.txt"}}}))
            escolhidos += (escolhidos.empty() ? "" : " ") + fs::relative(caminho, pasta).string();
        EXPECT_EQ(escolhidos, c.Esperado) << c.Porque;
        EXPECT_NE(conversa.Escrito.find(c.NaTela), std::string::npos) << conversa.Escrito;
    }
    TConversaEscrita muda;
    muda.Terminal = false;
    EXPECT_TRUE(TToolkitConsole(muda).EscolherCaminhos({}).empty());
    fs::remove_all(pasta);
}

TEST(Console, TemporizadorFechaAPerguntaQueNinguemResponde) {
    TConversaEscrita conversa;
    TToolkitConsole toolkit(conversa);
    TPergunta f;
    int vezes = 0;
    std::uintptr_t numero = 0;
    numero = toolkit.LigarTemporizador(100, [&] {
        if (++vezes < 2) Abort();  // silent
        toolkit.DesligarTemporizador(numero);
        f.Fechar();
    });
    conversa.Linhas = {std::nullopt, std::nullopt, u"s"};
    EXPECT_EQ(toolkit.ExecutarModal(f), mrCancel);
    EXPECT_EQ(conversa.Instante, std::chrono::milliseconds(200));
    toolkit.ProcessarMensagens();
    EXPECT_EQ(vezes, 2);
}

TEST(Console, OTextoNaoComandaOTerminalESeQuebraEmPalavras) {
    const std::tuple<std::u16string_view, int, std::string> casos[] = {
        {u"a\x1B[2Jb\x07\x7F\u009B\u202Ec\td\r\ne\rf", 0, "a?[2Jb????c d\ne\nf"},
        {u"um dois três", 7, "um dois\ntrês"},
        {u"um dois três", 8, "um dois\ntrês"},
        {u"um\ndois três", 7, "um\ndois\ntrês"},
        {u"comprida demais", 4, "comprida\ndemais"},
        {u"semespaço", 4, "semespaço"},
        {u"um  dois", 3, "um \ndois"},
    };
    for (const auto& [texto, colunas, esperado] : casos)
        EXPECT_EQ(ParaUtf8(Interno::ParaTerminal(texto, colunas)), esperado) << colunas;
}

TEST(Console, MedidaQuebraEmPalavras) {
    const TToolkitConsole toolkit;
    const struct {
        const char16_t* Texto;
        int Maxima;
        TTamanho Esperado;
    } casos[] = {{u"", 0, {0, 0}},
                 {u"abc", 0, {18, 13}},
                 {u"ab\r\nabcd", 0, {24, 26}},
                 {u"abc def", 30, {18, 26}},
                 {u"abcdefghij", 30, {60, 13}}};
    for (const auto& c : casos) EXPECT_EQ(toolkit.MedirTexto(c.Texto, c.Maxima), c.Esperado) << ParaUtf8(c.Texto);
}

}  // namespace
}  // namespace OryUtils
