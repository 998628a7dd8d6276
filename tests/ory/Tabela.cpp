#include "operacoes/Operacoes.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

// Holds the table of operations against the public operations that the headers declare, both ways.

namespace {

constexpr const char* CCabecalhos[] = {
    "text/OryUtilsStrings.hpp",
    "text/UnOryUtilsMatematica.hpp",
    "dates/OryUtilsDatas.hpp",
    "registry_numbers/OryUtilsValidacoes.hpp",
    "registry_numbers/UnOryUtilsValidacoesClasseIE.hpp",
};

constexpr const char* CPrecisaDeControle = "works on a control of a form";
constexpr const char* CPassoDoConversor = "a step on a converter; BuscarValorPorExtenso gives the words";
constexpr const char* CPassoDoObjeto = "a step on an IE object; ValidouIE gives the verdict";

// Public operations that programs cannot call, each with its reason.
const std::map<std::string, std::string> CForaDaTabela{
    {"ValidouCampo", CPrecisaDeControle},
    {"ValidarCampo", CPrecisaDeControle},
    {"TratarResultadoValidacao", CPrecisaDeControle},
    {"ValidouDocumento", CPrecisaDeControle},
    {"ValidarDocumento", CPrecisaDeControle},
    {"ValidarIE", CPrecisaDeControle},
    {"ValidarString", CPrecisaDeControle},
    {"ValidarCodigoCadastral", CPrecisaDeControle},
    {"ValidarCampoNumerico", CPrecisaDeControle},
    {"ValidarCampoSomenteNumeros", CPrecisaDeControle},
    {"ValidarCampoSomenteCaracteresEspeciais", CPrecisaDeControle},
    {"ValidarCRC", CPrecisaDeControle},
    {"ValidarEmail", CPrecisaDeControle},
    {"ValidarListaEmail", CPrecisaDeControle},
    {"ValidarData", CPrecisaDeControle},
    {"ValidarIPAddress", CPrecisaDeControle},
    {"ValidarDataInicioFim", CPrecisaDeControle},
    {"ValidarDiretorio", CPrecisaDeControle},
    {"ValidarCampoNomeArquivo", CPrecisaDeControle},
    {"ValidarCampoNomeComponente", CPrecisaDeControle},
    {"ValidarConteudoVariavel", CPrecisaDeControle},
    {"SetUF", CPassoDoObjeto},
    {"SetIE", CPassoDoObjeto},
    {"GetIE", CPassoDoObjeto},
    {"TratarGrupo", CPassoDoConversor},
    {"GetValor", CPassoDoConversor},
    {"SetValor", CPassoDoConversor},
    {"GetTexto", CPassoDoConversor},
    {"ConverterCentimetrosParaPixels", "asks the screen of a user interface"},
    {"GetUF", CPassoDoObjeto},
    {"GetValido", CPassoDoObjeto},
    {"Validar", CPassoDoObjeto},
};

// Entries that join several calls and so have a name of their own.
const std::set<std::string> CCompostas{"CalcularFormula", "Base64"};

std::string LerCabecalho(const std::string& ANome) {
    std::ifstream arquivo(std::string(ORY_PASTA_DO_PROJETO) + "/oryutils/" + ANome, std::ios::binary);
    const std::string texto{std::istreambuf_iterator<char>(arquivo), {}};
    const std::string semComentarios = std::regex_replace(texto, std::regex("//[^\n]*"), "");
    // What a class keeps to itself is not an operation.
    return std::regex_replace(semComentarios, std::regex("private:[^]*?\n\\};"), "};");
}

/// The names that are declared as functions: "type Nome(...)" followed by ";", "noexcept", "const" or a body.
std::set<std::string> BuscarOperacoesDeclaradas(const std::string& ATexto) {
    static const std::regex declaracao(R"([\w>&*]\s+([A-Z]\w+)\(([^;{}]*)\)\s*(const\s*)?(noexcept\s*)?[;{])");
    std::set<std::string> nomes;
    for (std::sregex_iterator i(ATexto.begin(), ATexto.end(), declaracao), fim; i != fim; ++i)
        nomes.insert((*i)[1].str());
    return nomes;
}

TEST(Tabela, TemAsOperacoesPublicasESoElas) {
    std::set<std::string> declaradas;
    for (const char* cabecalho : CCabecalhos) {
        const auto nomes = BuscarOperacoesDeclaradas(LerCabecalho(cabecalho));
        EXPECT_GE(nomes.size(), 10u) << cabecalho;  // the scanner still understands the header
        declaradas.insert(nomes.begin(), nomes.end());
    }
    std::set<std::string> chamaveis;
    for (const auto tabela : Ory::BuscarOperacoes())
        for (const Ory::TOperacao& operacao : tabela)
            chamaveis.emplace(operacao.Nome.substr(0, operacao.Nome.find(':')));

    for (const std::string& nome : declaradas) {
        const bool fora = CForaDaTabela.contains(nome) || nome.starts_with("Validar_");
        EXPECT_NE(chamaveis.contains(nome), fora) << nome << (fora ? " is excepted and bound" : " is not bound");
    }
    for (const std::string& nome : chamaveis)
        EXPECT_TRUE(declaradas.contains(nome) || CCompostas.contains(nome)) << nome << " is bound and not declared";
    for (const auto& [nome, porque] : CForaDaTabela)
        EXPECT_TRUE(declaradas.contains(nome)) << nome << " is excepted (" << porque << ") and not declared";
}

TEST(Tabela, CadaNomeSeAcha) {
    std::set<std::string_view> nomes;
    for (const auto tabela : Ory::BuscarOperacoes())
        for (const Ory::TOperacao& operacao : tabela) {
            EXPECT_TRUE(nomes.insert(operacao.Nome).second) << operacao.Nome << " stands in two rooms";
            EXPECT_EQ(Ory::BuscarOperacao(operacao.Nome), &operacao) << operacao.Nome;
        }
    EXPECT_EQ(Ory::BuscarOperacao("Zzz"), nullptr);
    EXPECT_EQ(Ory::BuscarOperacao(""), nullptr);
}

}  // namespace
