#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "Apoio.hpp"
#include "conferir/Conferencia.hpp"
#include "files/ApoioArquivos.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using nlohmann::json;

const std::string CExemplos = std::string(ORY_PASTA_DO_PROJETO) + "/examples/";
constexpr std::string_view CMarca = "\xEF\xBB\xBF";

json Resumir(std::string_view ATexto, std::vector<std::string> AOpcoes = {}) {
    std::vector<std::string> argumentos{"conferir", "-", "--json"};
    argumentos.insert(argumentos.end(), AOpcoes.begin(), AOpcoes.end());
    const TRodada rodada = Rodar(argumentos, ATexto);
    EXPECT_EQ(rodada.Erro, "");
    return json::parse(rodada.Saida);
}

TEST(Conferir, ArquivosReais) {
    struct TArquivo {
        const char *Nome, *Coluna;
        int Validos;
    };
    for (const TArquivo& arquivo :
         {TArquivo{"bancos.csv", "cnpj", 511}, TArquivo{"municipios.csv", "codigo_municipio", 5571}}) {
        const TRodada rodada = Rodar({"conferir", CExemplos + arquivo.Nome, "--json"});
        ASSERT_EQ(rodada.Status, 0) << rodada.Erro;
        const json resumo = json::parse(rodada.Saida);
        ASSERT_EQ(resumo["colunas"].size(), 1u);
        EXPECT_EQ(resumo["colunas"][0]["nome"], arquivo.Coluna);
        EXPECT_EQ(resumo["colunas"][0]["validos"], arquivo.Validos);
    }
}

TEST(Conferir, ExemploDeClientes) {
    const TRodada rodada = Rodar({"conferir", CExemplos + "clientes.csv", "--json", "--mostrar", "100"});
    ASSERT_EQ(rodada.Status, 1) << rodada.Erro;
    // The column "esperado" of the example names the columns that its line has wrong.
    const std::string texto = LerBytes(CExemplos + "clientes.csv");
    const json resumo = json::parse(rodada.Saida);
    std::size_t numero = 0;
    std::size_t conferidas = 0;
    for (std::size_t inicio = 0; inicio < texto.size(); ++numero) {
        const std::size_t fim = texto.find('\n', inicio);
        const std::string linha = texto.substr(inicio, fim - inicio);
        inicio = fim + 1;
        if (numero == 0) continue;
        const std::string esperado = " " + linha.substr(linha.rfind(';') + 1) + " ";
        for (const json& coluna : resumo["colunas"]) {
            bool invalida = false;
            for (const json& primeiro : coluna["primeiros"]) invalida |= primeiro["linha"] == numero + 1;
            const std::string nome = coluna["nome"];
            EXPECT_EQ(invalida, esperado.find(" " + nome + " ") != std::string::npos) << nome << ": " << linha;
            ++conferidas;
        }
    }
    EXPECT_EQ(resumo["colunas"].size(), 9u);
    EXPECT_GE(conferidas, 9u * 40);
}

struct TCampo {
    std::string_view Tipo, Valor, Uf;
    Ory::TVeredito Esperado;
    const char* Porque;
};

TEST(Conferir, CadaTipoDeColuna) {
    constexpr TCampo CCampos[] = {
        {"cnpj", "11.222.333/0001-81", "", Ory::veValido, "formatted"},
        {"cnpj", " 11.222.333/0001-81\r", "", Ory::veValido, "blanks around"},
        {"cnpj", "12.abc.345/01DE-35", "", Ory::veValido, "letters in either case"},
        {"cnpj", "11x222.333/0001-81", "", Ory::veInvalido, "a letter where a point stands"},
        {"cnpj", "11.222.333/0001-8\xE7", "", Ory::veInvalido, "a byte of Windows-1252"},
        {"cnpj", "  ", "", Ory::veVazio, "blank"},
        {"cpf", "529.982.247-25", "", Ory::veValido, "formatted"},
        {"cpf", "CPF 529982247 25!", "", Ory::veValido, "whatever is no digit plays no part"},
        {"cpf", "529.982.247-2", "", Ory::veInvalido, "a digit short"},
        {"documento", "529.982.247-25", "", Ory::veValido, "a CPF"},
        {"documento", "12ABC34501DE35", "", Ory::veValido, "an alphanumeric CNPJ"},
        {"documento", "123", "", Ory::veInvalido, "neither"},
        {"ie", "224/3658792", " rs", Ory::veValido, "as people write it"},
        {"ie", "Isento", "XX", Ory::veValido, "exempt"},
        {"ie", "224/3658793", "RS", Ory::veInvalido, "wrong digit"},
        {"pis", "1234 5678 919", "", Ory::veValido, "blanks in it"},
        {"pis", "12345678918", "", Ory::veInvalido, "wrong digit"},
        {"cno", "00.000.00000/00", "", Ory::veValido, "the rule lets zeros pass"},
        {"cno", "1-2+3E4.5,6_789012", "", Ory::veInvalido, "the rule raises"},
        {"cei", "000000000000", "", Ory::veValido, "the rule lets zeros pass"},
        {"cei", "abcdefghijkl", "", Ory::veInvalido, "the rule raises"},
        {"cei", "1-2+3E4.5,6_789012", "", Ory::veInvalido, "the rule raises for punctuation too"},
        {"cnh", "0", "", Ory::veValido, "the rule lets it pass"},
        {"cnh", "x", "", Ory::veInvalido, "not a number"},
        {"municipio", "2201919", "", Ory::veValido, "official, against the rule"},
        {"municipio", "São Paulo", "", Ory::veInvalido, "a name"},
        {"email", "a.b@cd.ef", "", Ory::veValido, "one address"},
        {"email", "jo\xE3o@cd.ef", "", Ory::veValido, "Windows-1252"},
        {"email", "a.b.cd", "", Ory::veInvalido, "no @"},
        {"emails", "a@b.c; d@e.f,", "", Ory::veValido, "two, and a delimiter at the end"},
        {"emails", "a@b.c, d@", "", Ory::veInvalido, "the second one"},
        {"crc", "1sp-123456/O-5", "", Ory::veValido, "as people write it"},
        {"crc", "1SP123456O55", "", Ory::veInvalido, "too long"},
        {"data", "29/02/2024", "", Ory::veValido, "leap day"},
        {"data", "29/02/2023", "", Ory::veInvalido, "no such day"},
        {"hora", "14:07", "", Ory::veValido, "of the day"},
        {"hora", "24:00", "", Ory::veInvalido, "no such time"},
        {"ip", "192.168.0.1", "", Ory::veValido, "four parts"},
        {"ip", "192.168.0", "", Ory::veInvalido, "three"},
        {"cep", "01310-100", "", Ory::veValido, "formatted"},
        {"cep", "1310100", "", Ory::veInvalido, "its leading zero lost"},
        {"telefone", "(11) 98765-4321", "", Ory::veValido, "formatted"},
        {"telefone", "01133334444", "", Ory::veValido, "with the long-distance zero"},
        {"telefone", "3333-4444", "", Ory::veInvalido, "without the area code"},
        {"competencia", "03/2024", "", Ory::veValido, "month and year"},
        {"competencia", "13/2024", "", Ory::veInvalido, "no such month"},
        {"ncm", "8471.30.12", "", Ory::veValido, "eight digits"},
        {"ncm", "8471", "", Ory::veInvalido, "a heading only"},
    };
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    std::set<std::pair<std::string_view, Ory::TVeredito>> vistos;
    for (const TCampo& c : CCampos) {
        const Ory::TTipoColuna& tipo = *Ory::BuscarPapel(c.Tipo).Tipo;
        std::string formatado, deNovo;
        EXPECT_EQ(Ory::Conferir(tipo, c.Valor, c.Uf, &formatado), c.Esperado) << c.Tipo << ": " << c.Porque;
        EXPECT_EQ(formatado.empty(), c.Esperado != Ory::veValido) << c.Tipo << ": " << c.Porque;
        if (!formatado.empty()) Ory::Conferir(tipo, formatado, c.Uf, &deNovo);
        EXPECT_EQ(formatado, deNovo) << c.Tipo << ": the display form is its own display form";
        vistos.emplace(c.Tipo, c.Esperado);
    }
    for (const Ory::TTipoColuna& tipo : Ory::BuscarTipos()) {
        EXPECT_EQ(Ory::Conferir(tipo, "lixo", "SP"), Ory::veInvalido) << tipo.Nome;
        for (const Ory::TVeredito veredito : {Ory::veValido, Ory::veInvalido})
            EXPECT_TRUE(vistos.contains({tipo.Nome, veredito})) << tipo.Nome << " has no case of verdict " << veredito;
    }
}

TEST(Conferir, ReconheceAsColunasPeloCabecalho) {
    const json resumo = Resumir(
        "CNPJ;Cpf;Documento;Inscrição Estadual;UF;PIS;c.e.i.;CNO;CNH;Código Município;nome;;\"--\"\n"
        "11222333000181;;529.982.247-25;ISENTO;SP;;;;;3550308;Ana;nota;lembrete\n");
    std::string tipos;
    for (const json& coluna : resumo["colunas"]) tipos += coluna["tipo"].get<std::string>() + " ";
    EXPECT_EQ(tipos, "cnpj cpf documento ie pis cei cno cnh municipio ") << "a header without a name tells no kind";
    EXPECT_TRUE(resumo["valido"]);
    const json latina = Resumir("inscri\xE7\xE3o estadual;uf\nISENTA;RJ\n");
    EXPECT_EQ(latina["colunas"][0]["nome"], "inscrição estadual");
    EXPECT_EQ(latina["codificacao"], "windows-1252");
    EXPECT_EQ(Resumir("nome;codigo\n", {"--coluna", "02=cnpj"})["colunas"][0]["nome"], "codigo") << "by position";
}

TEST(Conferir, ContaEMostraOsPrimeiros) {
    std::string texto = "cnpj;nome\r\n";
    for (int i = 0; i < 7; ++i) texto += "123;\"a\r\nb\"\r\n";
    texto += ";c\r\n\r\n11222333000181;Jo\xE3o\r\n11222333000181\r\n1;2;3\r\n";
    const json resumo = Resumir(texto, {"--mostrar", "2"});
    const json& coluna = resumo["colunas"][0];
    EXPECT_EQ(coluna["invalidos"], 8);
    EXPECT_EQ(coluna["validos"], 2);
    EXPECT_EQ(coluna["vazios"], 1);
    EXPECT_EQ(coluna["primeiros"], json::parse(R"([{"linha":2,"valor":"123"},{"linha":4,"valor":"123"}])"));
    EXPECT_EQ(resumo["linhas_em_branco"], 1);
    EXPECT_EQ(resumo["desiguais"], json::parse(R"({"total":2,"esperados":2,"primeiros":[{"linha":19,"campos":1},
                                                   {"linha":20,"campos":3}]})"));
    EXPECT_EQ(resumo["codificacao"], "windows-1252");
}

TEST(Conferir, ResumoParaPessoasNaoLevaControlesAoTerminal) {
    const TRodada rodada = Rodar({"conferir"}, "cnpj\n\x1b[31m1\n");
    EXPECT_EQ(rodada.Status, 1);
    EXPECT_NE(rodada.Saida.find("linha 2  ·[31m1\n"), std::string::npos) << rodada.Saida;
    EXPECT_EQ(rodada.Saida.find('\x1b'), std::string::npos);
}

struct TFalhaEsperada {
    std::vector<std::string> Argumentos;
    std::string Entrada;
    const char* Trecho;  // of the sentence
};

TEST(Conferir, FalhasTerminamComUmaFraseEStatus2) {
    const std::string aspas = "cnpj;nome\n1;a\n2;\"" + std::string(20'000'000, 'x');
    const TFalhaEsperada casos[] = {
        {{"conferir", "nao/existe.csv"}, "", "o arquivo não existe"},
        {{"conferir", ORY_PASTA_DO_PROJETO}, "", "é uma pasta"},
        {{"conferir"}, "", "o arquivo está vazio"},
        {{"conferir"}, "nome;idade\na;1\n", "nenhuma coluna para conferir entre: nome, idade"},
        {{"conferir", "--coluna", "x=cnpj"}, "nome;idade\n", "não há coluna \"x\""},
        {{"conferir", "--coluna", "nome=xx"}, "nome\n", "xx (os tipos são cnpj, cpf, documento, ie, uf, pis,"},
        {{"conferir", "--coluna", "nome"}, "nome\n", "espera nome=tipo"},
        {{"conferir"}, "ie\n1\n", "não de UF"},
        {{"conferir"}, "cnpj;nome\n1;a\n2;\"b\n\n", "linha 3: aspas abertas"},
        {{"conferir"}, aspas, "linha 3: registro maior que o limite de 16 MiB"},
        {{"conferir"},
         std::string("\xFF\xFE"
                     "c\0n\0",
                     6),
         "UTF-16"},
        {{"conferir", "--vereditos", "cnpj"}, "\xFE\xFF", "UTF-16"},
        {{"conferir", "--vereditos", "ie"}, "1\n", "--uf"},
        {{"conferir", "--codificacao", "ebcdic"}, "cnpj\n", "utf-8 ou windows-1252"},
        {{"conferir", "--nada"}, "", "argumento desconhecido: --nada"},
        {{"conferir", "--saida"}, "", "falta o valor de --saida"},
        {{"conferir", "--saida", "nao/existe/x.csv"}, "cnpj\n", "não foi possível criar"},
    };
    for (const TFalhaEsperada& caso : casos) {
        const TRodada rodada = Rodar(caso.Argumentos, caso.Entrada);
        EXPECT_EQ(rodada.Status, 2) << caso.Trecho;
        EXPECT_NE(rodada.Erro.find(caso.Trecho), std::string::npos) << rodada.Erro;
        EXPECT_EQ(std::count(rodada.Erro.begin(), rodada.Erro.end(), '\n'), 1) << rodada.Erro;
        EXPECT_EQ(rodada.Saida, "") << caso.Trecho;
    }
}

struct TReescrita {
    std::string Entrada, Esperado;
    const char* Porque;
};

TEST(Conferir, ReescreveComVereditoENumeroFormatado) {
    const TReescrita casos[] = {
        {"cnpj;nome\n11222333000181;a\n1;b\n;c\n",
         "cnpj;nome;cnpj_veredito;cnpj_formatado\n11222333000181;a;valido;11.222.333/0001-81\n1;b;invalido;\n"
         ";c;vazio;\n",
         "the three verdicts"},
        {std::string(CMarca) + "cpf\r\n\"52998224725\"\r\n",
         std::string(CMarca) + "cpf;cpf_veredito;cpf_formatado\r\n\"52998224725\";valido;529.982.247-25\r\n",
         "mark, CR LF and quotes stay"},
        {"cpf,nome,uf\n52998224725", "cpf,nome,uf,cpf_veredito,cpf_formatado\n52998224725,,,valido,529.982.247-25",
         "a short record is completed; no line end is invented"},
        {"\"c;e;i\";x\xE9\n00.000.00000/00;1\n",
         "\"c;e;i\";x\xE9;\"c;e;i_veredito\";\"c;e;i_formatado\"\n00.000.00000/00;1;valido;00.000.00000/00\n",
         "a header that needs quotes; bytes of Windows-1252 stay"},
        {"ie;uf\n224/3658792;RS\nisento;RS\n",
         "ie;uf;ie_veredito;ie_formatado\n224/3658792;RS;valido;2243658792\nisento;RS;valido;ISENTO\n", "IE bare"},
        {"emails;cep\n\"a@b.c;d@e.f\";01310100\n",
         "emails;cep;emails_veredito;emails_formatado;cep_veredito;cep_formatado\n"
         "\"a@b.c;d@e.f\";01310100;valido;\"a@b.c;d@e.f\";valido;01310-100\n",
         "a formatted value that needs quotes"},
        {"fone;data;crc\n1133334444;5/3/2024;1sp123456/o-5\n",
         "fone;data;crc;fone_veredito;fone_formatado;data_veredito;data_formatado;crc_veredito;crc_formatado\n"
         "1133334444;5/3/2024;1sp123456/o-5;valido;(11)3333-4444;valido;05/03/2024;valido;1SP123456O5\n",
         "each in its form"},
    };
    for (const TReescrita& caso : casos) {
        Ory::TEntradaDeTexto entrada(caso.Entrada, 5);
        Ory::TSaidaDeTexto saida;
        const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
        Ory::ConferirCsv(entrada, &saida, {.Limites = {.Bloco = 8}});
        EXPECT_EQ(saida.Texto, caso.Esperado) << caso.Porque;
    }
}

// The command works on bytes, and asks some rules only about what may be a number: the verdicts and the forms are those
// of the library.
TEST(Conferir, AsRegrasSaoAsDaBiblioteca) {
    using R = OryUtils::TOryUtilsValidacoes;
    using S = OryUtils::TOryUtilsStrings;
    const auto formatar = [](OryUtils::TTipoInscricao ATipo) {
        return
            [ATipo](std::u16string_view t) { return S::FormatarInscricaoFederal(ATipo, S::ExtrairSomenteNumeros(t)); };
    };
    struct TRegra {
        std::string_view Tipo;
        std::function<bool(std::u16string_view)> Validou;
        std::function<std::u16string(std::u16string_view)> Formatar;
    };
    const TRegra regras[] = {
        {"cnpj", R::ValidouCnpjAlfanumerico, R::FormatarCnpjAlfanumerico},
        {"cpf", [](std::u16string_view t) { return R::ValidouCnpjCpf(OryTypes::tiCPF, t); }, formatar(OryTypes::tiCPF)},
        {"cei", R::ValidouCEI, formatar(OryTypes::tiCEI)},
        {"cno", R::ValidouCNO, formatar(OryTypes::tiCNO)},
        {"municipio", R::ValidouCodigoMunicipioOficial, formatar(OryTypes::tiNenhuma)},
    };
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937 gerador(semente);
    const std::vector<std::string> sementes{
        "",        "11.222.333/0001-81", "529.982.247-25", "11222333000181", "52998224725", "000000000000",
        "2201919", "12ABC34501DE35"};
    for (int i = 0; i < 20'000; ++i) {
        std::string campo = sementes[gerador() % sementes.size()];
        for (auto n = gerador() % 4; n > 0; --n)
            campo.insert(gerador() % (campo.size() + 1), 1, "0123456789./-+ eabZ"[gerador() % 19]);
        const std::u16string texto(OryUtils::Aparar(OryUtils::DeUtf8(campo)));
        if (texto.empty()) continue;
        for (const TRegra& regra : regras) {
            std::string formatado, esperado;
            try {
                if (regra.Validou(texto)) esperado = OryUtils::ParaUtf8(regra.Formatar(texto));
            } catch (const OryUtils::EConvertError&) {  // as good as a no
            }
            const auto veredito = Ory::Conferir(*Ory::BuscarPapel(regra.Tipo).Tipo, campo, "", &formatado);
            EXPECT_EQ(veredito == Ory::veValido, !esperado.empty()) << regra.Tipo << ": " << campo;
            EXPECT_EQ(formatado, esperado) << regra.Tipo << ": " << campo;
        }
    }
}

TEST(Conferir, BlocosDeQualquerTamanhoDaoOMesmo) {
    std::string texto = "nome;cnpj\n";
    for (int i = 0; i < 3000; ++i)
        texto += (i % 7 ? "a" : "\"a\n\"\"b\"") + std::string(i % 3 ? ";11222333000181\n" : ";1122233300018\n");
    const auto conferir = [&](std::size_t ABloco) {
        Ory::TEntradaDeTexto entrada(texto);
        Ory::TSaidaDeTexto saida;
        const Ory::TResumo resumo = Ory::ConferirCsv(entrada, &saida, {.Mostrar = 1000, .Limites = {.Bloco = ABloco}});
        for (const Ory::TInfrator& infrator : resumo.Colunas[0].Primeiros)
            saida.Texto += std::to_string(infrator.Linha) + " " + infrator.Valor + "\n";
        return saida.Texto + std::to_string(resumo.Colunas[0].Validos);
    };
    const std::string esperado = conferir(1 << 20);
    EXPECT_NE(esperado.find("\n3428 1122233300018\n2000"), std::string::npos) << esperado.substr(esperado.size() - 100);
    for (const std::size_t bloco : {1, 13, 100, 5000}) EXPECT_TRUE(conferir(bloco) == esperado) << bloco;
}

TEST(Conferir, VereditosSaemUmPorLinha) {
    const TRodada rodada = Rodar({"conferir", "--vereditos", "cnpj"}, "11222333000181\r\n1\n\n11.222.333/0001-81");
    EXPECT_EQ(rodada.Saida, "1\n0\n0\n1\n");
    EXPECT_EQ(rodada.Status, 1);
    EXPECT_EQ(Rodar({"conferir", "--vereditos", "ie", "--uf", "RS"}, "2243658792\n").Status, 0);
    EXPECT_EQ(Rodar({"conferir", "--vereditos", "cpf"}, "").Saida, "");
    const TRodada longa = Rodar({"conferir", "--vereditos", "cpf"}, "52998224725\n" + std::string(17'000'000, 'x'));
    EXPECT_EQ(longa.Saida, "1\n") << "the lines before a refused one have their answers";
    EXPECT_EQ(longa.Status, 2);
}

TEST(Conferir, SaidaTrocaOArquivoSoNoFim) {
    const TPastaTemporaria pasta;
    const auto arquivo = pasta / u"x.csv";
    const std::string nome = OryUtils::ParaUtf8(pasta.Gravar(u"x.csv", "cpf\n52998224725\n"));
    EXPECT_EQ(Rodar({"conferir", nome, "--saida", nome}).Status, 0);
    EXPECT_EQ(LerBytes(arquivo), "cpf;cpf_veredito;cpf_formatado\n52998224725;valido;529.982.247-25\n");
    GravarBytes(arquivo, "cpf\n\"52998224725\n");
    EXPECT_EQ(Rodar({"conferir", nome, "--saida", nome}).Status, 2);
    EXPECT_EQ(LerBytes(arquivo), "cpf\n\"52998224725\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(pasta.Caminho()), {}), 1) << "nothing beside it";
    EXPECT_TRUE(std::filesystem::remove(arquivo)) << "nobody holds it";
}

}  // namespace
