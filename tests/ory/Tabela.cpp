#include "operations/Operacoes.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

// Holds the table of operations against the public operations that the headers declare, both ways.

namespace {

constexpr const char* CCabecalhos[] = {
    "text/OryUtilsStrings.hpp",
    "text/UnOryUtilsMatematica.hpp",
    "dates/OryUtilsDatas.hpp",
    "registry_numbers/OryUtilsDocumentos.hpp",
    "registry_numbers/OryUtilsValidacoes.hpp",
    "registry_numbers/UnOryUtilsValidacoesClasseIE.hpp",
    "files/OryUtilsFiles.hpp",
    "sql/UnOryUtilsClasseManipulacaoSQL.hpp",
};

// Most of what they declare asks the machine, changes it, or is a step on a log or a filter, and is not callable; what
// is callable is declared here.
constexpr const char* COutrosCabecalhos[] = {
    "files/UnOryUtilsArquivoLog.hpp",
    "sql/UnOryUtilsClasseFiltroSql.hpp",
    "system/OryUtilsRegistry.hpp",
    "system/OryUtilsSystem.hpp",
};

// Public operations that programs cannot call, by the reason.
constexpr const char* CForaDaTabela[][2] = {
    {"reads or changes the settings of the machine",
     "Inicializar GetChave GetValorRegistro ExisteChave ExisteValor CriarChave AdicionouValor AdicionarValor "
     "ExcluiuValor ExcluirValor ExcluirRegistro ExcluiuChave AdicionouProgramaInicializacaoWindows "
     "ExcluiuProgramaInicializacaoWindows BuscarValorVariavelAmbiente AdicionouValorVariavelAmbiente "
     "ExcluiuValorVariavelAmbiente AlterouCotaLimiteObjetosGDI BuscarValorCotaLimiteObjetosGDI "
     "AtualizouTimeoutInicializacaoServico"},
    {"works on a control of a form",
     "ValidouCampo ValidarCampo TratarResultadoValidacao ValidarDocumento ValidarNumeroDocumento ValidarIE "
     "ValidarString ValidarCodigoCadastral ValidarCampoNumerico ValidarCampoSomenteNumeros "
     "ValidarCampoSomenteCaracteresEspeciais ValidarCRC ValidarEmail ValidarListaEmail ValidarData "
     "ValidarIPAddress ValidarDataInicioFim ValidarDiretorio ValidarCampoNomeArquivo "
     "ValidarCampoNomeComponente ValidarConteudoVariavel"},
    {"a step on an IE object; ValidouIE gives the verdict", "SetUF SetIE GetIE GetUF GetValido GetMotivo Validar"},
    {"a step on a converter; BuscarValorPorExtenso gives the words", "TratarGrupo GetValor SetValor GetTexto"},
    {"asks the screen of a user interface", "ConverterCentimetrosParaPixels"},
    {"of the IE class: ValidouIE is it", "Validou"},
    {"a step on a statement; SepararBlocosSQL gives both parts",
     "SetScriptSQL GetScriptSQL GetSQLPrincipal GetSQLAdicional Limpar"},
    {"opens a window", "AbrirArquivo"},
    {"changes a file", "AlterouDataHoraArquivo"},
    {"a step on a file's data; ory versao shows them",
     "SetArquivo GetArquivo CarregaDados Clear Adiciona Localiza GetItems GetNomeCompanhia GetDescricao "
     "GetNomeInterno GetLegalCopyright GetLegalTrademarks GetNomeOriginal GetNomeProduto GetVersaoProduto "
     "GetComentarios GetVersaoMinimaBanco GetVersaoMaximaConversao GetNaoLiberarPacote GetVersao "
     "BuscarVersaoArquivoIni GetNome GetTamanho GetTamanhoFormatado GetExtensao GetData GetDataModificacao"},
};

// Entries that join several calls and so have a name of their own.
const std::set<std::string> CCompostas{"CalcularFormula",        "Base64",
                                       "MontarFiltroSql",        "InformacoesDetalhadas",
                                       "LinhasDaSaidaDeComando", "ListaIPLocalDaSaidaARP"};

/// The header without its comments and without what a class keeps to itself.
std::string LerCabecalho(const std::string& ANome) {
    std::ifstream arquivo(std::string(ORY_PASTA_DO_PROJETO) + "/oryutils/" + ANome, std::ios::binary);
    std::string texto;
    bool publico = true;
    for (std::string linha; std::getline(arquivo, linha);) {
        linha = linha.substr(0, linha.find("//"));
        if (linha.starts_with("private:") || linha.starts_with("protected:")) publico = false;
        if (linha.starts_with("};")) publico = true;
        if (publico) texto += linha + " ";
    }
    return texto;
}

/// The names that are declared as functions: a type, a blank, a name in capitals first, arguments, the end.
std::set<std::string> BuscarOperacoesDeclaradas(const std::string& ATexto) {
    const std::regex declaracao(
        R"((\w+|[>&*]) ((?:[A-Z]|isA)\w*)\([^)]*\) *(?:const)? *(?:noexcept)? *(?:override)? *[;{])");
    std::set<std::string> nomes;
    for (std::sregex_iterator achado(ATexto.begin(), ATexto.end(), declaracao), fim; achado != fim; ++achado)
        if ((*achado)[1] != "explicit") nomes.insert((*achado)[2]);
    return nomes;
}

TEST(Tabela, TemAsOperacoesPublicasESoElas) {
    std::map<std::string, const char*> excetuadas;
    for (const auto& [porque, nomes] : CForaDaTabela) {
        std::istringstream palavras(nomes);
        for (std::string nome; palavras >> nome;) EXPECT_TRUE(excetuadas.emplace(nome, porque).second) << nome;
    }
    std::set<std::string> declaradas;
    for (const char* cabecalho : CCabecalhos) {
        const auto nomes = BuscarOperacoesDeclaradas(LerCabecalho(cabecalho));
        EXPECT_GE(nomes.size(), 8u) << cabecalho;  // the scanner still understands the header
        declaradas.insert(nomes.begin(), nomes.end());
    }
    std::set<std::string> chamaveis;
    for (const auto tabela : Ory::BuscarOperacoes())
        for (const Ory::TOperacao& operacao : tabela)
            chamaveis.emplace(operacao.Nome.substr(0, operacao.Nome.find(':')));

    for (const std::string& nome : declaradas) {
        const bool fora = excetuadas.contains(nome) || nome.starts_with("Validar_");
        EXPECT_NE(chamaveis.contains(nome), fora) << nome << (fora ? " is excepted and bound" : " is not bound");
    }
    for (const char* cabecalho : COutrosCabecalhos)
        declaradas.merge(BuscarOperacoesDeclaradas(LerCabecalho(cabecalho)));
    for (const std::string& nome : chamaveis)
        EXPECT_TRUE(declaradas.contains(nome) || CCompostas.contains(nome)) << nome << " is bound and not declared";
    for (const auto& [nome, porque] : excetuadas)
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
