#include "Apoio.hpp"
#include "ui/ToolkitRoteirizado.hpp"

// What the commands refuse, with the sentence that people read.

namespace {

const std::string CUtf16(
    "\xFF\xFE"
    "c\0n\0",
    6);

TEST(Recusas, TerminamComUmaFraseEStatus2) {
    const OryUtils::TToolkitRoteirizado toolkit;  // no dialog is shown
    ConferirRecusas({
        {{"nada"}, "argumento desconhecido: nada; veja ory --ajuda"},
        {{"conferri", "x.csv"}, "argumento desconhecido: conferri x.csv; você quis dizer conferir?; veja ory --ajuda"},
        {{"chamar", "Nada"}, "operação desconhecida: Nada"},
        {{"chamar", "validoucnpjcfp", "1", "1"},
         "operação desconhecida: validoucnpjcfp; você quis dizer ValidouCnpjCpf?"},
        {{"chamar"}, "falta a operação ou --lote; veja ory chamar --ajuda"},
        {{"chamar", "--lote", "x"}, "--lote não leva operação na linha de comando"},
        {{"chamar", "TextoContemItemVetor", "a", "b", "true"},
         "argumento 2: esperava lista de textos, veio texto \"b\""},
        {{"conferir", "nao/existe.csv"}, "não foi possível ler nao/existe.csv: a pasta não existe"},
        {{"conferir", ORY_PASTA_DO_PROJETO}, "não foi possível ler " ORY_PASTA_DO_PROJETO ": é uma pasta"},
        {{"conferir"}, "o arquivo está vazio"},
        {{"conferir"},
         "nenhuma coluna para conferir entre: nome, idade; indique com --coluna nome=tipo",
         "nome;idade\na;1\n"},
        {{"conferir", "--coluna", "x=cnpj"}, "não há coluna \"x\" no arquivo", "nome;idade\n"},
        {{"conferir", "--coluna", "nome=xx"},
         "tipo desconhecido: xx (os tipos são cnpj, cpf, documento, ie, uf, pis, cei, cno, cnh, municipio, email, "
         "emails, crc, data, hora, ip, cep, telefone, competencia, ncm, nenhum)",
         "nome\n"},
        {{"conferir", "--coluna", "nome"}, "--coluna espera nome=tipo, veio nome", "nome\n"},
        {{"conferir"},
         "há coluna de inscrição estadual mas não de UF; indique com --coluna nome=uf ou --uf",
         "ie\n1\n"},
        {{"conferir"}, "linha 3: aspas abertas e nunca fechadas", "cnpj;nome\n1;a\n2;\"b\n\n"},
        {{"conferir"},
         "linha 3: registro maior que o limite de 16 MiB (faltam aspas de fechamento?)",
         "cnpj;nome\n1;a\n2;\"" + std::string(20'000'000, 'x')},
        {{"conferir"}, "a entrada está em UTF-16; grave-a em UTF-8 ou Windows-1252", CUtf16},
        {{"conferir", "--vereditos", "cnpj"}, "a entrada está em UTF-16; grave-a em UTF-8 ou Windows-1252", "\xFE\xFF"},
        {{"conferir", "--vereditos", "ie"}, "vereditos de ie pedem --uf", "1\n"},
        {{"conferir", "--codificacao", "ebcdic"}, "--codificacao espera utf-8 ou windows-1252, veio ebcdic", "cnpj\n"},
        {{"conferir", "--nada"}, "argumento desconhecido: --nada; veja ory --ajuda"},
        {{"conferir", "--sadia", "x"}, "argumento desconhecido: --sadia; você quis dizer --saida?; veja ory --ajuda"},
        {{"conferir", "--mostrar", "-1"}, "--mostrar espera um número inteiro, veio -1; veja ory --ajuda"},
        {{"conferir", "--mostrar", "dez"}, "--mostrar espera um número inteiro, veio dez; veja ory --ajuda"},
        {{"conferir", "--saida"}, "falta o valor de --saida; veja ory --ajuda"},
        {{"conferir", "--saida", "nao/existe/x.csv"},
         "não foi possível criar nao/existe/x.csv: a pasta não existe",
         "cnpj\n"},
        {{"formula", "1", "semvalor"}, "'semvalor' não é NOME=VALOR"},
        {{"log"}, "falta ARQUIVO; veja ory --ajuda"},
        {{"log", ".log"}, "não há nome de arquivo em '.log'"},
        {{"log", "x", "--codificacao", "ebcdic"}, "--codificacao espera padrao, utf-8 ou windows-1252, veio ebcdic"},
        {{"mensagem", "?", "--tipo", "grave"}, "--tipo não conhece grave; veja ory mensagem --ajuda"},
        {{"mensagem", "?", "--botao", "talvez"}, "--botao não conhece talvez; veja ory mensagem --ajuda"},
        {{"mensagem", "?", "--botao", "sim", "--botao", "sim=De novo"}, "--botao repete sim"},
        {{"mensagem", "?", "--padrao", "nao"}, "--padrao não é um dos botões: nao"},
        {{"mensagem", "?", "--opcao", "a", "--caixa", "b"},
         "só um de --opcao, --caixa, --detalhe e --valor por mensagem"},
        {{"mensagem", "?", "--opcao", "a", "--opcao-padrao", "2"}, "--opcao-padrao vai de 0 a 1"},
        {{"mensagem", "?", "--valor", "", "--botao", "ok"}, "--valor não combina com --botao, --tipo nem --fechar-em"},
        {{"mensagem", "?", "--entrada", "rg"}, "--entrada não conhece rg; veja ory mensagem --ajuda"},
        {{"mensagem", "?", "--entrada", "cpf", "--mascara", "00"}, "só um de --entrada e --mascara"},
        {{"mensagem", "?", "--mascara", "--;0"},
         "--mascara: '--;0' não é uma máscara de edição válida: não tem onde digitar."},
        {{"mensagem", "?", "--senha", "--linhas"},
         "--linhas e --lista não combinam entre si nem com --entrada, --mascara e --senha"},
        {{"mensagem", "?", "--varios"}, "--varios é de --lista"},
        {{"mensagem", "?", "--lista", "a", "--valor", "b"}, "--valor não é um item de --lista: b"},
        {{"mensagem", "?", "--lista", "a", "--botao", "ok"}, "--lista não combina com --botao, --tipo nem --fechar-em"},
        {{"mensagem", "--arquivo", "--pasta"}, "só um de --arquivo, --arquivos, --salvar e --pasta por vez"},
        {{"mensagem", "--salvar", "a", "--botao", "ok"},
         "arquivos e pastas não combinam com botões, opções, --tipo, --valor nem --fechar-em"},
        {{"mensagem", "--arquivo", "--filtro", "Notas"}, "--filtro espera descrição=máscaras, veio Notas"},
        {{"mensagem", "?", "--pasta-inicial", "/"},
         "--filtro e --pasta-inicial são de --arquivo, --arquivos, --salvar e --pasta"},
        {{"mensagem", "?", "--fechar-em", "4294967295"}, "--fechar-em vai até 2147483 segundos"},
        {{"mensagem", "?", "--fechar-em", "-1"}, "--fechar-em espera um número inteiro, veio -1; veja ory --ajuda"},
        {{"mensagem", "?", "--lembrar", "c", "--caixa", "x"},
         "--lembrar não combina com --opcao, --caixa, --detalhe, --valor nem arquivos e pastas"},
        {{"mensagem", "--andamento", "--botao", "ok"},
         "--andamento só combina com TEXTO, --titulo, --dono e --na-frente"},
        {{"mensagem", "?", "--dono", "0x12z"}, "--dono espera o número de uma janela, veio 0x12z"},
        {{"mensagem", "?", "--dono", "0x12"}, "--dono não é possível neste ambiente"},
        {{"mensagem", "?", "--na-frente"}, "--na-frente não é possível neste ambiente"},
        {{"servico"}, "falta o comando; veja ory --ajuda"},
        {{"servico", "estado"}, "falta NOME; veja ory --ajuda"},
    });
    EXPECT_TRUE(toolkit.Titulos.empty());
}

}  // namespace
