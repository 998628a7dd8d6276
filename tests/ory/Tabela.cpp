#include "operacoes/Operacoes.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>

// Holds the table of operations against the public operations that the headers declare, both ways.

namespace {

constexpr const char* CCabecalhos[] = {
    "text/OryUtilsStrings.hpp",
    "text/UnOryUtilsMatematica.hpp",
    "dates/OryUtilsDatas.hpp",
    "registry_numbers/OryUtilsValidacoes.hpp",
    "registry_numbers/UnOryUtilsValidacoesClasseIE.hpp",
    "files/OryUtilsFiles.hpp",
    "sql/UnOryUtilsClasseFiltroSql.hpp",
    "sql/UnOryUtilsClasseManipulacaoSQL.hpp",
    "files/UnOryUtilsArquivoLog.hpp",
};

// Most of what they declare asks the machine or changes it and is not callable; what is callable is declared here.
constexpr const char* CCabecalhosDaMaquina[] = {
    "system/OryUtilsRegistry.hpp",
    "system/OryUtilsSystem.hpp",
};

constexpr const char* CPrecisaDeControle = "works on a control of a form";
constexpr const char* CPassoDoConversor = "a step on a converter; BuscarValorPorExtenso gives the words";
constexpr const char* CPassoDoFiltro = "a step on a filter; MontarFiltroSql gives its text";
constexpr const char* CPassoDoComando = "a step on a statement; SepararBlocosSQL gives both parts";
constexpr const char* CPassoDoArquivo = "a step on a file's data; ory versao shows them";
constexpr const char* CPassoDoObjeto = "a step on an IE object; ValidouIE gives the verdict";

constexpr const char* CMexeNosAjustes = "reads or changes the settings of the machine";
constexpr const char* CPassoDoLog = "a step on a log; ory log writes one";

// Public operations that programs cannot call, each with its reason.
const std::map<std::string, std::string> CForaDaTabela{
    {"Inicializar", CMexeNosAjustes},
    {"GetChave", CMexeNosAjustes},
    {"GetValorRegistro", CMexeNosAjustes},
    {"ExisteChave", CMexeNosAjustes},
    {"ExisteValor", CMexeNosAjustes},
    {"CriarChave", CMexeNosAjustes},
    {"AdicionouValor", CMexeNosAjustes},
    {"AdicionarValor", CMexeNosAjustes},
    {"ExcluiuValor", CMexeNosAjustes},
    {"ExcluirValor", CMexeNosAjustes},
    {"ExcluirRegistro", CMexeNosAjustes},
    {"ExcluiuChave", CMexeNosAjustes},
    {"AdicionouProgramaInicializacaoWindows", CMexeNosAjustes},
    {"ExcluiuProgramaInicializacaoWindows", CMexeNosAjustes},
    {"BuscarValorVariavelAmbiente", CMexeNosAjustes},
    {"AdicionouValorVariavelAmbiente", CMexeNosAjustes},
    {"ExcluiuValorVariavelAmbiente", CMexeNosAjustes},
    {"AlterouCotaLimiteObjetosGDI", CMexeNosAjustes},
    {"BuscarValorCotaLimiteObjetosGDI", CMexeNosAjustes},
    {"AtualizouTimeoutInicializacaoServico", CMexeNosAjustes},
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
    {"GetMotivo", CPassoDoObjeto},
    {"Validou", "of the IE class: ValidouIE is it"},
    {"Validar", CPassoDoObjeto},
    {"Add", CPassoDoFiltro},
    {"GetItem", CPassoDoFiltro},
    {"SetItem", CPassoDoFiltro},
    {"Clear", CPassoDoFiltro},
    {"Assign", CPassoDoFiltro},
    {"GetCampo", CPassoDoFiltro},
    {"SetCampo", CPassoDoFiltro},
    {"GetCondicao", CPassoDoFiltro},
    {"SetCondicao", CPassoDoFiltro},
    {"GetOperador", CPassoDoFiltro},
    {"SetOperador", CPassoDoFiltro},
    {"GetOwner", CPassoDoFiltro},
    {"SetOwner", CPassoDoFiltro},
    {"GetQuoteStr", CPassoDoFiltro},
    {"SetQuoteStr", CPassoDoFiltro},
    {"GetTabela", CPassoDoFiltro},
    {"SetTabela", CPassoDoFiltro},
    {"GetUsarUpperCase", CPassoDoFiltro},
    {"SetUsarUpperCase", CPassoDoFiltro},
    {"BuscarCondicaoStr", CPassoDoFiltro},
    {"BuscarOperadorStr", CPassoDoFiltro},
    {"BuscarSQL", CPassoDoFiltro},
    {"BuscarSQLAnd", CPassoDoFiltro},
    {"BuscarSQLOr", CPassoDoFiltro},
    {"BuscarSQLWhere", CPassoDoFiltro},
    {"SetScriptSQL", CPassoDoComando},
    {"GetScriptSQL", CPassoDoComando},
    {"GetSQLPrincipal", CPassoDoComando},
    {"GetSQLAdicional", CPassoDoComando},
    {"Limpar", CPassoDoComando},
    {"AbrirArquivo", "opens a window"},
    {"AlterouDataHoraArquivo", "changes a file"},
    {"SetArquivo", CPassoDoArquivo},
    {"GetArquivo", CPassoDoArquivo},
    {"CarregaDados", CPassoDoArquivo},
    {"Adiciona", CPassoDoArquivo},
    {"Localiza", CPassoDoArquivo},
    {"GetItems", CPassoDoArquivo},
    {"GetNomeCompanhia", CPassoDoArquivo},
    {"GetDescricao", CPassoDoArquivo},
    {"GetNomeInterno", CPassoDoArquivo},
    {"GetLegalCopyright", CPassoDoArquivo},
    {"GetLegalTrademarks", CPassoDoArquivo},
    {"GetNomeOriginal", CPassoDoArquivo},
    {"GetNomeProduto", CPassoDoArquivo},
    {"GetVersaoProduto", CPassoDoArquivo},
    {"GetComentarios", CPassoDoArquivo},
    {"GetVersaoMinimaBanco", CPassoDoArquivo},
    {"GetVersaoMaximaConversao", CPassoDoArquivo},
    {"GetNaoLiberarPacote", CPassoDoArquivo},
    {"GetVersao", CPassoDoArquivo},
    {"BuscarVersaoArquivoIni", CPassoDoArquivo},
    {"GetNome", CPassoDoArquivo},
    {"GetTamanho", CPassoDoArquivo},
    {"GetTamanhoFormatado", CPassoDoArquivo},
    {"GetExtensao", CPassoDoArquivo},
    {"GetData", CPassoDoArquivo},
    {"GetDataModificacao", CPassoDoArquivo},
    {"IniciarLog", CPassoDoLog},
    {"Adicionar", CPassoDoLog},
    {"AdicionarSeparador", CPassoDoLog},
    {"AdicionarEspacoEmBranco", CPassoDoLog},
    {"InserirTexto", CPassoDoLog},
    {"FinalizarLog", CPassoDoLog},
    {"ExibirLog", CPassoDoLog},
    {"GetArquivoLog", CPassoDoLog},
    {"SetArquivoLog", CPassoDoLog},
    {"GetUsarArquivoLogExistente", CPassoDoLog},
    {"SetUsarArquivoLogExistente", CPassoDoLog},
    {"GetTipoPeriodicidade", CPassoDoLog},
    {"SetTipoPeriodicidade", CPassoDoLog},
    {"GetFormatoMensagem", CPassoDoLog},
    {"SetFormatoMensagem", CPassoDoLog},
    {"GetSalvarAutomaticamente", CPassoDoLog},
    {"SetSalvarAutomaticamente", CPassoDoLog},
    {"GetModoGravacao", CPassoDoLog},
    {"SetModoGravacao", CPassoDoLog},
    {"GetCodificacao", CPassoDoLog},
    {"SetCodificacao", CPassoDoLog},
    {"GetOnStatus", CPassoDoLog},
    {"SetOnStatus", CPassoDoLog},
    {"GetOnAposFinalizarLog", CPassoDoLog},
    {"SetOnAposFinalizarLog", CPassoDoLog},
    {"EstahSalvo", CPassoDoLog},
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

bool EhDeNome(char ACaractere) {
    return ACaractere == '_' || std::isalnum(static_cast<unsigned char>(ACaractere)) != 0;
}

bool EhFimDeTipo(char ACaractere) { return ACaractere == '>' || ACaractere == '&' || ACaractere == '*'; }

/// True when ATexto goes on as a declaration does behind its arguments: ";" or a body, "const" and "noexcept" before
/// it.
bool EhFimDeDeclaracao(std::string_view ATexto) {
    for (const std::string_view palavra : {" ", "const", " ", "noexcept", " ", "override", " "})
        while (ATexto.starts_with(palavra)) ATexto.remove_prefix(palavra.size());
    return ATexto.starts_with(';') || ATexto.starts_with('{');
}

/// The names that are declared as functions: a type, blanks, a name in capitals first, arguments, the end.
std::set<std::string> BuscarOperacoesDeclaradas(const std::string& ATexto) {
    std::set<std::string> nomes;
    for (std::size_t abre = ATexto.find('('); abre != std::string::npos; abre = ATexto.find('(', abre + 1)) {
        std::size_t inicio = abre;
        while (inicio > 0 && EhDeNome(ATexto[inicio - 1])) --inicio;
        const std::string_view antes = std::string_view(ATexto).substr(0, inicio);
        const bool depoisDeTipo = antes.size() > 1 && antes.back() == ' ' && !antes.ends_with(" explicit ") &&
                                  (EhDeNome(antes[antes.size() - 2]) || EhFimDeTipo(antes[antes.size() - 2]));
        const std::size_t fecha = ATexto.find(')', abre);
        const bool nome = inicio < abre && (std::isupper(static_cast<unsigned char>(ATexto[inicio])) != 0 ||
                                            ATexto.compare(inicio, 3, "isA") == 0);
        if (nome && depoisDeTipo && fecha != std::string::npos &&
            EhFimDeDeclaracao(std::string_view(ATexto).substr(fecha + 1)))
            nomes.insert(ATexto.substr(inicio, abre - inicio));
    }
    return nomes;
}

TEST(Tabela, TemAsOperacoesPublicasESoElas) {
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
        const bool fora = CForaDaTabela.contains(nome) || nome.starts_with("Validar_");
        EXPECT_NE(chamaveis.contains(nome), fora) << nome << (fora ? " is excepted and bound" : " is not bound");
    }
    for (const char* cabecalho : CCabecalhosDaMaquina)
        declaradas.merge(BuscarOperacoesDeclaradas(LerCabecalho(cabecalho)));
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
