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
#include <random>
#include <set>
#include <sstream>
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
    for (const auto& [nome, coluna] : {std::pair("bancos.csv", R"({"nome":"cnpj","validos":511})"),
                                       std::pair("municipios.csv", R"({"nome":"codigo_municipio","validos":5571})")}) {
        const TRodada rodada = Rodar({"conferir", CExemplos + nome, "--json"});
        ASSERT_EQ(rodada.Status, 0) << rodada.Erro;
        const json colunas = json::parse(rodada.Saida)["colunas"];
        ASSERT_EQ(colunas.size(), 1u);
        EXPECT_EQ((json{{"nome", colunas[0]["nome"]}, {"validos", colunas[0]["validos"]}}), json::parse(coluna));
    }
}

/// The last column of the example names the columns that its line has wrong.
TEST(Conferir, ExemploDeClientes) {
    const TRodada rodada = Rodar({"conferir", CExemplos + "clientes.csv", "--json", "--mostrar", "100"});
    ASSERT_EQ(rodada.Status, 1) << rodada.Erro;
    const json resumo = json::parse(rodada.Saida);
    EXPECT_EQ(resumo["colunas"].size(), 9u);
    std::istringstream texto(LerBytes(CExemplos + "clientes.csv"));
    int numero = 0;
    for (std::string linha; std::getline(texto, linha);) {
        if (++numero == 1) continue;
        const std::string esperado = " " + linha.substr(linha.rfind(';') + 1) + " ";
        for (const json& coluna : resumo["colunas"]) {
            const std::string nome = coluna["nome"];
            const bool invalida =
                std::ranges::any_of(coluna["primeiros"], [&](auto& p) { return p["linha"] == numero; });
            EXPECT_EQ(invalida, esperado.find(" " + nome + " ") != std::string::npos) << nome << ": " << linha;
        }
    }
    EXPECT_GT(numero, 40);
}

struct TCampo {
    std::string_view Tipo, Uf;
    std::vector<std::string_view> Validos, Invalidos;
};

TEST(Conferir, CadaTipoDeColuna) {
    const TCampo campos[] = {
        // As people write them: blanks around, either case; no letter where a point stands, no byte of Windows-1252.
        {"cnpj",
         "",
         {"11.222.333/0001-81", " 11.222.333/0001-81\r", "12.abc.345/01DE-35"},
         {"11x222.333/0001-81", "11.222.333/0001-8\xE7"}},
        // Whatever is no digit plays no part.
        {"cpf", "", {"529.982.247-25", "CPF 529982247 25!"}, {"529.982.247-2"}},
        {"documento", "", {"529.982.247-25", "12ABC34501DE35"}, {"123"}},
        {"ie", " rs", {"224/3658792", "Isento"}, {"224/3658793"}},
        {"ie", "XX", {"Isento"}, {"224/3658792"}},
        {"pis", "", {"1234 5678 919"}, {"12345678918"}},
        // The rules let zeros pass, and raise where there are letters or punctuation.
        {"cno", "", {"00.000.00000/00"}, {"1-2+3E4.5,6_789012"}},
        {"cei", "", {"000000000000"}, {"abcdefghijkl", "1-2+3E4.5,6_789012"}},
        {"cnh", "", {"0"}, {"x"}},
        // Official, against the rule.
        {"municipio", "", {"2201919"}, {"São Paulo"}},
        // Windows-1252, too.
        {"email", "", {"a.b@cd.ef", "jo\xE3o@cd.ef"}, {"a.b.cd"}},
        {"emails", "", {"a@b.c; d@e.f,"}, {"a@b.c, d@"}},
        {"crc", "", {"1sp-123456/O-5"}, {"1SP123456O55"}},
        {"data", "", {"29/02/2024"}, {"29/02/2023"}},
        {"hora", "", {"14:07"}, {"24:00"}},
        {"ip", "", {"192.168.0.1"}, {"192.168.0"}},
        {"cep", "", {"01310-100"}, {"1310100"}},
        // With the long-distance zero; not without the area code.
        {"telefone", "", {"(11) 98765-4321", "01133334444"}, {"3333-4444"}},
        {"competencia", "", {"03/2024"}, {"13/2024"}},
        // Not a heading alone.
        {"ncm", "", {"8471.30.12"}, {"8471"}},
    };
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    std::set<std::string_view> vistos;
    for (const TCampo& campo : campos) {
        const Ory::TTipoColuna& tipo = *Ory::BuscarPapel(campo.Tipo).Tipo;
        for (const std::string_view valor : campo.Validos) {
            std::string formatado, deNovo;
            EXPECT_EQ(Ory::Conferir(tipo, valor, campo.Uf, &formatado), Ory::veValido) << campo.Tipo << valor;
            EXPECT_NE(formatado, "") << campo.Tipo << valor;
            Ory::Conferir(tipo, formatado, campo.Uf, &deNovo);
            EXPECT_EQ(formatado, deNovo) << campo.Tipo << ": the display form is its own display form";
        }
        for (const std::string_view valor : campo.Invalidos) {
            std::string formatado;
            EXPECT_EQ(Ory::Conferir(tipo, valor, campo.Uf, &formatado), Ory::veInvalido) << campo.Tipo << valor;
            EXPECT_EQ(formatado, "") << campo.Tipo << valor;
        }
        if (!campo.Validos.empty() && !campo.Invalidos.empty()) vistos.insert(campo.Tipo);
    }
    for (const Ory::TTipoColuna& tipo : Ory::BuscarTipos()) {
        EXPECT_TRUE(vistos.contains(tipo.Nome)) << tipo.Nome << " has no right and wrong value";
        EXPECT_EQ(Ory::Conferir(tipo, "lixo", "SP"), Ory::veInvalido) << tipo.Nome;
        EXPECT_EQ(Ory::Conferir(tipo, "  ", "SP"), Ory::veVazio) << tipo.Nome;
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

struct TCasoDeArquivo {
    std::string_view Texto;
    const char *Delimitador, *NaoConferidas;
    std::size_t Registros;
    int Status;
    const char* Porque;
};
const TCasoDeArquivo CArquivos[] = {
    {"cpf\tcnpj\n52998224725\t11222333000181\n", "\t", "[]", 1, 0, "tabs"},
    {"cpf|nome, completo\n52998224725|Ana, Maria\n", "|", R"(["nome, completo"])", 1, 0,
     "a comma in the names is no delimiter"},
    {"sep=,\r\ncpf,nome;x\r\n52998224724,Ana\r\n", ",", R"(["nome;x"])", 1, 1, "a spreadsheet's first line"},
    {"cpf;nome\r52998224725;Ana\r52998224725;Bia\r", ";", R"(["nome"])", 2, 0, "CR alone"},
    {"cpf;nome\n", ";", R"(["nome"])", 0, 2, "no records"},
};

TEST(Conferir, ArquivosDePlanilhas) {
    for (const TCasoDeArquivo& c : CArquivos) {
        const TRodada rodada = Rodar({"conferir", "-", "--json"}, c.Texto);
        ASSERT_EQ(rodada.Status, c.Status) << c.Porque << rodada.Erro;
        const json resumo = json::parse(rodada.Saida);
        EXPECT_EQ(resumo["delimitador"], c.Delimitador) << c.Porque;
        EXPECT_EQ(resumo["nao_conferidas"], json::parse(c.NaoConferidas)) << c.Porque;
        EXPECT_EQ(resumo["registros"], c.Registros) << c.Porque;
        EXPECT_EQ(resumo["valido"], c.Status == 0) << c.Porque;
    }
    EXPECT_EQ(Rodar({"conferir", "-", "--vazio-ok"}, "cpf;nome\n").Status, 0);
    EXPECT_NE(Rodar({"conferir", "-"}, "cpf;nome\n").Saida.find("Não há registros."), std::string::npos);
    const std::string relatorio = Rodar({"conferir", "-"}, "cpf;nome;cargo\n52998224725;a;b\n").Saida;
    EXPECT_NE(relatorio.find("\nColunas não conferidas: nome, cargo\n"), std::string::npos) << relatorio;
    EXPECT_NE(relatorio.find("\nTudo válido nas colunas conferidas.\n"), std::string::npos) << relatorio;
    const TRodada recusada = Rodar({"conferir", "-", "--delimitador", ";"}, "cpf\tcnpj\n");
    EXPECT_EQ(recusada.Status, 2);
    EXPECT_NE(recusada.Erro.find("--delimitador tab"), std::string::npos) << recusada.Erro;
    const TRodada saida = Rodar({"conferir", "-", "--saida", "-"}, "sep=,\ncpf,b\n52998224725,x\n");
    EXPECT_EQ(saida.Saida, "sep=,\ncpf,b,cpf_veredito,cpf_formatado\n52998224725,x,valido,529.982.247-25\n");
    EXPECT_NE(saida.Erro.find("1 registro"), std::string::npos) << saida.Erro;
}

TEST(Conferir, ContaEMostraOsPrimeiros) {
    std::string texto = "cnpj;nome\r\n";
    for (int i = 0; i < 7; ++i) texto += "123;\"a\r\nb\"\r\n";
    texto += ";c\r\n\r\n11222333000181;Jo\xE3o\r\n11222333000181\r\n1;2;3\r\n";
    const json resumo = Resumir(texto, {"--mostrar", "2"});
    EXPECT_EQ(resumo["colunas"], json::parse(R"([{"nome":"cnpj","tipo":"cnpj","validos":2,"invalidos":8,"vazios":1,
              "primeiros":[{"linha":2,"valor":"123"},{"linha":4,"valor":"123"}]}])"));
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

TEST(Conferir, ReescreveComVereditoENumeroFormatado) {
    const struct {
        std::string Entrada, Esperado;
        const char* Porque;
    } casos[] = {
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
    for (const auto& caso : casos) {
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
    using TTexto = std::u16string_view;
    static const auto formatar = [](OryUtils::TTipoInscricao ATipo, TTexto t) {
        return S::FormatarInscricaoFederal(ATipo, S::ExtrairSomenteNumeros(t));
    };
    const struct {
        std::string_view Tipo;
        bool (*Validou)(TTexto);
        std::u16string (*Formatar)(TTexto);
    } regras[] = {
        {"cnpj", R::ValidouCnpjAlfanumerico, R::FormatarCnpjAlfanumerico},
        {"cpf", [](TTexto t) { return R::ValidouCnpjCpf(OryTypes::tiCPF, t); },
         [](TTexto t) { return formatar(OryTypes::tiCPF, t); }},
        {"cei", R::ValidouCEI, [](TTexto t) { return formatar(OryTypes::tiCEI, t); }},
        {"cno", R::ValidouCNO, [](TTexto t) { return formatar(OryTypes::tiCNO, t); }},
        {"municipio", R::ValidouCodigoMunicipioOficial, S::ExtrairSomenteNumeros},
    };
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937 gerador(semente);
    const char* const CSementes[] = {"11.222.333/0001-81", "529.982.247-25", "11222333000181", "52998224725",
                                     "000000000000",       "2201919",        "12ABC34501DE35", ""};
    for (int i = 0; i < 20'000; ++i) {
        std::string campo = CSementes[gerador() % std::size(CSementes)];
        for (auto n = gerador() % 4; n > 0; --n)
            campo.insert(gerador() % (campo.size() + 1), 1, "0123456789./-+ eabZ"[gerador() % 19]);
        const std::u16string texto(OryUtils::Aparar(OryUtils::DeUtf8(campo)));
        if (texto.empty()) continue;
        for (const auto& regra : regras) {
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
