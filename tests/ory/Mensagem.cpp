#include "mensagem/Andamento.hpp"
#include "ory/Apoio.hpp"
#include "ui/ToolkitRoteirizado.hpp"

#include <gtest/gtest.h>

namespace Ory {
namespace {

using namespace OryUtils;

TEST(Mensagem, RespondeOQueFoiEscolhido) {
    TToolkitRoteirizado toolkit;
    const auto clicar = [](std::u16string ACaption) {
        return [ACaption](TFormulario& AFormulario) { BuscarBotao(AFormulario, ACaption).Clicar(); };
    };
    const auto enter = [](TFormulario& AFormulario) { Teclar(AFormulario, 13); };
    const auto digitar = [&](TFormulario& AFormulario) {
        dynamic_cast<TCaixaEdicao&>(*AFormulario.BuscarControle(u"Valor")).AceitarTexto(u"São João");
        enter(AFormulario);
    };
    const auto esperar = [&](TFormulario&) { toolkit.VencerTempo(); };
    const auto fechar = [](TFormulario& AFormulario) { AFormulario.Fechar(); };
    const struct {
        std::vector<std::string> Argumentos;
        TToolkitRoteirizado::TPasso Passo;
        int Status;
        const char *Saida, *Porque;
    } casos[] = {
        {{"oi"}, clicar(u"O&K"), 0, "OK\n", "plain"},
        {{"oi"}, fechar, 3, "\n", "window closed, no cancel button"},
        {{"oi", "--botao", "ok", "--botao", "cancelar"}, fechar, 3, "Cancelar\n", "window closed"},
        {{"--tipo", "confirmacao", "?", "--padrao", "nao"}, enter, 1, "Não\n", "default button"},
        {{"?", "--botao", "nao=A&B", "--botao", "sim=&&"}, clicar(u"A&&B"), 1, "A&B\n", "captions of the caller"},
        {{"?", "--botao", "nao=A&B", "--botao", "sim=&&"}, clicar(u"&&&&"), 0, "&&\n", "list order"},
        {{"?", "--opcao", "Matriz", "--opcao", "Pá & Cia", "--opcao-padrao", "2"},
         enter,
         0,
         "OK\nPá & Cia\n",
         "options"},
        {{"?", "--opcao", "Matriz", "--opcao-padrao", "0"}, enter, 0, "OK\n\n", "no option chosen"},
        {{"?", "--opcao", "A", "--opcao", "B", "--opcao-padrao", "2", "--indice"}, enter, 0, "OK\n2\n", "its number"},
        {{"?", "--opcao", "A", "--opcao-padrao", "0", "--indice"}, enter, 0, "OK\n0\n", "the number of none"},
        {{"?", "--opcao", "A\r\nB\nC\rD", "--botao", "ok=1\n2"}, enter, 0, "1 2\nA B C D\n", "one line for each"},
        {{"?", "--caixa", "mais"}, enter, 0, "OK\n0\n", "check box"},
        {{"?", "--detalhe", "d", "--fechar-em", "5"}, esperar, 4, "\n", "nobody answered"},
        {{"?", "--fechar-em", "5"}, fechar, 3, "\n", "closed before its time"},
        {{"?", "--botao", "ok", "--botao", "cancelar", "--fechar-em", "5"}, esperar, 4, "Cancelar\n", "also with one"},
        {{"Nome:", "--valor", ""}, digitar, 0, "São João\n", "a text"},
        {{"Nome:", "--valor", "x"}, fechar, 3, "", "no text"},
        {{"?", "--botao", "sim", "--botao", "nao", "--fechar-em", "1", "--mostrar-tempo"}, esperar, 4, "\n", "counted"},
    };
    for (const auto& caso : casos) {
        toolkit.Roteiro = {caso.Passo};
        std::vector<std::string> argumentos{"mensagem"};
        argumentos.insert(argumentos.end(), caso.Argumentos.begin(), caso.Argumentos.end());
        EXPECT_EQ(Rodar(argumentos), (TRodada{caso.Status, caso.Saida, ""})) << caso.Porque;
    }
    toolkit.Roteiro.push_back([](TFormulario& AFormulario) {
        EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), u"linha 1\r\nlinha 2");
        EXPECT_EQ(AFormulario.GetTitulo(), u"Aviso");
    });
    Rodar({"mensagem", "--tipo", "aviso", "linha 1", "linha 2"});
}

TEST(Mensagem, PedeTextosEItens) {
    TToolkitRoteirizado toolkit;
    const auto responder = [](std::u16string ATexto, std::vector<int> AItens = {}) {
        return [=](TFormulario& AFormulario) {
            auto* valor = AFormulario.BuscarControle(u"Valor");
            if (valor && ATexto != u"mesmo") valor->AceitarTexto(ATexto);
            if (auto* lista = dynamic_cast<TListaEscolha*>(AFormulario.BuscarControle(u"Lista"));
                lista && ATexto != u"mesmo") {
                lista->AceitarEscolhidos(AItens);
                lista->OnEscolher(lista);
            }
            try {
                Teclar(AFormulario, 13, valor && valor->GetTipo() == tcMemorando);
            } catch (const EAbort&) {
                AFormulario.Fechar();  // refused; a toolkit would go on
            }
        };
    };
    const struct {
        std::vector<std::string> Argumentos;
        TToolkitRoteirizado::TPasso Passo;
        int Status;
        const char *Saida, *Porque;
    } casos[] = {
        {{"CPF?", "--entrada", "cpf"}, responder(u"529.982.247-25"), 0, "52998224725\n", "without marks"},
        {{"CPF?", "--entrada", "cpf"}, responder(u"529.982.247-26"), 3, "", "refused, then given up"},
        {{"CPF?", "--entrada", "cpf"}, responder(u""), 0, "\n", "blank"},
        {{"CPF?", "--entrada", "cpf", "--obrigatorio"}, responder(u""), 3, "", "not blank"},
        {{"?", "--entrada", "numero", "--valor", "1234.5"}, responder(u"mesmo"), 0, "1234,5\n", "offered"},
        {{"?", "--mascara", ">LLL0A00;0;_"}, responder(u"abc1d23"), 0, "ABC1D23\n", "a mask"},
        {{"?", "--senha"}, responder(u" s "), 0, " s \n", "a password"},
        {{"?", "--obrigatorio"}, responder(u"a"), 0, "a\n", "any text, not blank"},
        {{"?", "--linhas"}, responder(u"um\ndois"), 0, "um\ndois\n", "each line"},
        {{"?", "--lista", "a", "--lista", "b & c"}, responder(u"", {1}), 0, "b & c\n", "an item"},
        {{"?", "--lista", "a", "--lista", "b", "--valor", "b"}, responder(u"mesmo"), 0, "b\n", "chosen beforehand"},
        {{"?", "--lista", "a"}, responder(u""), 3, "", "no item, refused"},
        {{"?", "--lista", "a", "--lista", "b", "--varios", "--indice"}, responder(u"", {0, 1}), 0, "1\n2\n", "numbers"},
        {{"?", "--lista", "a", "--varios"}, responder(u""), 0, "", "no item"},
    };
    for (const auto& caso : casos) {
        toolkit.Roteiro = {caso.Passo};
        std::vector<std::string> argumentos{"mensagem"};
        argumentos.insert(argumentos.end(), caso.Argumentos.begin(), caso.Argumentos.end());
        EXPECT_EQ(Rodar(argumentos), (TRodada{caso.Status, caso.Saida, ""})) << caso.Porque;
    }
}

TEST(Mensagem, PedeArquivosEPastas) {
    const struct {
        std::vector<std::string> Argumentos;
        TPedidoDeCaminho Esperado;
    } casos[] = {
        {{"--arquivo", "Que", "nota?"}, {.Selecao = scAbrir, .Titulo = u"Que nota?"}},
        {{"--pasta", "--pasta-inicial", "/ação"}, {.Selecao = scPasta, .PastaInicial = u"/ação"}},
        {{"--arquivos", "x", "--titulo", "y", "--filtro", "Notas=*.xml;*.x", "--filtro", "a=b=*.*"},
         {.Selecao = scAbrirVarios,
          .Titulo = u"y",
          .ExtensaoPadrao = u"xml",
          .Filtros = {{u"Notas", u"*.xml;*.x"}, {u"a=b", u"*.*"}}}},
        {{"--salvar", "n.txt", "--filtro", "t=*.*"},
         {.Selecao = scSalvar, .NomeSugerido = u"n.txt", .Filtros = {{u"t", u"*.*"}}}},
        {{"--salvar", ""}, {.Selecao = scSalvar}},
    };
    for (const auto& caso : casos) {
        for (const bool cancela : {false, true}) {
            TToolkitRoteirizado toolkit;
            if (!cancela) toolkit.Escolha = u"/tmp/São João.txt";
            std::vector<std::string> argumentos{"mensagem"};
            argumentos.insert(argumentos.end(), caso.Argumentos.begin(), caso.Argumentos.end());
            EXPECT_EQ(Rodar(argumentos), (cancela ? TRodada{3, "", ""} : TRodada{0, "/tmp/São João.txt\n", ""}));
            ASSERT_EQ(toolkit.Pedidos.size(), 1U);
            EXPECT_EQ(toolkit.Pedidos[0], caso.Esperado) << testing::PrintToString(caso.Argumentos);
        }
    }
}

TEST(Mensagem, LembraARespostaEEsquece) {
    TToolkitRoteirizado toolkit;
    const std::vector<std::string> pergunta{"mensagem", "?",         "--botao",   "sim",
                                            "--botao",  "nao=Nunca", "--lembrar", "ç"};
    EXPECT_EQ(Rodar({"mensagem", "--esquecer-tudo"}), (TRodada{0, "", ""}));
    toolkit.Roteiro = {[](TFormulario& AFormulario) {
        dynamic_cast<TCaixaChecagem&>(*AFormulario.BuscarControle(u"CaixaChecagem")).AceitarMarcada(true);
        BuscarBotao(AFormulario, u"Nunca").Clicar();
    }};
    EXPECT_EQ(Rodar(pergunta), (TRodada{1, "Nunca\n", ""}));
    toolkit.HaQuemResponda = false;
    EXPECT_EQ(Rodar(pergunta), (TRodada{1, "Nunca\n", ""})) << "remembered, nobody is needed";
    EXPECT_EQ(toolkit.Titulos.size(), 1U);
    EXPECT_EQ(Rodar({"mensagem", "--esquecer", "ç"}), (TRodada{0, "", ""}));
    EXPECT_EQ(Rodar(pergunta).Status, 5) << "asked again";
}

TEST(Mensagem, AndamentoPelaEntrada) {
    const std::pair<const char*, TLinhaDeAndamento> linhas[] = {
        {"42", {42, {}}},
        {"42%", {42, {}}},
        {"42.5 dois textos\r", {42.5, "dois textos"}},
        {"42,5 ", {42.5, ""}},
        {"texto", {{}, "texto"}},
        {"101 dálmatas", {{}, "101 dálmatas"}},
        {"-1", {{}, "-1"}},
        {"nan", {{}, "nan"}},
        {"3arquivos", {{}, "3arquivos"}},
        {"", {}},
    };
    for (const auto& [linha, esperada] : linhas) EXPECT_EQ(LerLinhaDeAndamento(linha), esperada) << linha;

    TToolkitRoteirizado toolkit;
    const std::vector<std::string> argumentos{"mensagem", "--andamento", "Copiando"};
    EXPECT_EQ(Rodar(argumentos, "10\n20 b\nc"), (TRodada{0, "", ""})) << "the input ends";
    EXPECT_EQ(Rodar(argumentos), (TRodada{0, "", ""}));
    toolkit.AoProcessar = [&] { Teclar(*toolkit.Exibido, 27); };
    EXPECT_EQ(Rodar(argumentos, std::string(1'000'000, '\n')), (TRodada{3, "", ""})) << "cancelled, read no further";
}

// Without a screen and a terminal a message is told, and a question has a status of its own.
TEST(Mensagem, SemQuemResponda) {
    TToolkitRoteirizado toolkit;
    toolkit.HaQuemResponda = false;
    const TRodada recusa{5, "", "ory: não há tela nem terminal para perguntar\n"};
    for (const std::vector<std::string>& pergunta :
         std::initializer_list<std::vector<std::string>>{{"--tipo", "confirmacao"},
                                                         {"--botao", "ok", "--botao", "cancelar"},
                                                         {"--opcao", "a"},
                                                         {"--caixa", "c"},
                                                         {"--detalhe", "d"},
                                                         {"--pasta"},
                                                         {"--valor", ""}}) {
        std::vector<std::string> argumentos{"mensagem", "?"};
        argumentos.insert(argumentos.end(), pergunta.begin(), pergunta.end());
        EXPECT_EQ(Rodar(argumentos), recusa) << pergunta.back();
    }
    toolkit.Roteiro = {[](TFormulario& AFormulario) { Teclar(AFormulario, 13); }};
    EXPECT_EQ(Rodar({"mensagem", "oi"}), (TRodada{0, "OK\n", ""}));
    EXPECT_EQ(toolkit.Titulos.size(), 1U);
}

}  // namespace
}  // namespace Ory
