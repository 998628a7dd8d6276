#include "ory/Apoio.hpp"
#include "ui/ToolkitRoteirizado.hpp"

#include <gtest/gtest.h>

namespace Ory {
namespace {

using namespace OryUtils;

TRodada Mostrar(std::vector<std::string> AArgumentos) {
    AArgumentos.insert(AArgumentos.begin(), "mensagem");
    return Rodar(AArgumentos);
}

TEST(Mensagem, RespondeOQueFoiEscolhido) {
    TToolkitRoteirizado toolkit;
    struct TCaso {
        std::vector<std::string> Argumentos;
        TToolkitRoteirizado::TPasso Passo;
        int Status;
        const char *Saida, *Porque;
    };
    const auto clicar = [](std::u16string ACaption) {
        return [ACaption](TFormulario& AFormulario) { BuscarBotao(AFormulario, ACaption).Clicar(); };
    };
    const auto enter = [](TFormulario& AFormulario) { Teclar(AFormulario, 13); };
    const auto fechar = [](TFormulario& AFormulario) { AFormulario.Fechar(); };
    const TCaso casos[] = {
        {{"oi"}, clicar(u"O&K"), 0, "OK\n", "plain"},
        {{"oi"}, fechar, 3, "\n", "window closed, no cancel button"},
        {{"oi", "--botao", "ok", "--botao", "cancelar"}, fechar, 3, "Cancelar\n", "window closed"},
        {{"--tipo", "confirmacao", "?", "--padrao", "nao"}, enter, 1, "Não\n", "default button"},
        {{"?", "--botao", "nao=&Fica", "--botao", "sim=V&ai"}, clicar(u"&Fica"), 1, "Fica\n", "captions of the caller"},
        {{"?", "--botao", "nao=&Fica", "--botao", "sim=V&ai"}, clicar(u"V&ai"), 0, "Vai\n", "list order"},
        {{"?", "--opcao", "Matriz", "--opcao", "&Filial", "--opcao-padrao", "2"}, enter, 0, "OK\nFilial\n", "options"},
        {{"?", "--opcao", "Matriz", "--opcao-padrao", "0"}, enter, 0, "OK\n\n", "no option chosen"},
        {{"?", "--caixa", "mais"}, enter, 0, "OK\n0\n", "check box"},
        {{"?", "--detalhe", "d", "--fechar-em", "5"},
         [&](TFormulario&) { toolkit.VencerTempo(); },
         3,
         "\n",
         "nobody answered"},
        {{"Nome:", "--valor", ""},
         [&](TFormulario& AFormulario) {
             dynamic_cast<TCaixaEdicao&>(*AFormulario.BuscarControle(u"Valor")).AceitarTexto(u"São João");
             Teclar(AFormulario, 13);
         },
         0,
         "São João\n",
         "a text"},
        {{"Nome:", "--valor", "x"}, fechar, 3, "", "no text"},
    };
    for (const TCaso& caso : casos) {
        toolkit.Roteiro = {caso.Passo};
        const TRodada resposta = Mostrar(caso.Argumentos);
        EXPECT_EQ(resposta.Status, caso.Status) << caso.Porque << resposta.Erro;
        EXPECT_EQ(resposta.Saida, caso.Saida) << caso.Porque;
    }
    toolkit.Roteiro.push_back([](TFormulario& AFormulario) {
        EXPECT_EQ(BuscarTexto(AFormulario, u"Message"), u"linha 1\r\nlinha 2");
        EXPECT_EQ(AFormulario.GetTitulo(), u"Aviso");
    });
    Mostrar({"--tipo", "aviso", "linha 1", "linha 2"});
}

TEST(Mensagem, RecusaOQueNaoFazMensagem) {
    TToolkitRoteirizado toolkit;
    const std::vector<std::string> casos[] = {
        {"?", "--tipo", "grave"},
        {"?", "--botao", "talvez"},
        {"?", "--botao", "sim", "--botao", "sim=De novo"},
        {"?", "--padrao", "nao"},
        {"?", "--opcao", "a", "--caixa", "b"},
        {"?", "--opcao", "a", "--opcao-padrao", "2"},
        {"?", "--valor", "", "--botao", "ok"},
        {"?", "--fechar-em", "4294967295"},
        {"?", "--fechar-em", "-1"},
    };
    for (const auto& caso : casos) {
        const TRodada resposta = Mostrar(caso);
        EXPECT_EQ(resposta.Status, 2) << caso.back();
        EXPECT_EQ(resposta.Saida, "");
        EXPECT_TRUE(resposta.Erro.starts_with("ory: ")) << resposta.Erro;
    }
    EXPECT_TRUE(toolkit.Titulos.empty());
}

}  // namespace
}  // namespace Ory
