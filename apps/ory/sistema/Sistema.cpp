#include "sistema/Sistema.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Opcoes.hpp"
#include "Tabela.hpp"
#include "TextoNaTela.hpp"
#include "operations/Json.hpp"

namespace Ory {
namespace {

using S = OryUtils::TOryUtilsSistema;
using OryUtils::TFormatoBytes;

constexpr std::size_t CMaiorTexto = 200;

/// One thing that the machine tells of itself. All that the command knows of it stands in this row.
struct TPergunta {
    const char* Nome;    // in JSON
    const char* Titulo;  // for people
    std::u16string (*Responder)();
};
constexpr TPergunta CMaquina[] = {
    {"computador", "Computador", S::BuscarNomeComputador},
    {"usuario", "Usuário", S::BuscarNomeUsuarioLogadoNoWindows},
    {"windows", "Windows", [] { return std::u16string(OryUtils::CVetorVersaoWindows[S::BuscarVersaoWindows()]); }},
    {"ip", "Endereço IP", S::BuscarIPLocal},
    {"mac", "Endereço MAC", [] { return S::BuscarEnderecoMac(u"localhost"); }},
};
constexpr TPergunta CPastas[] = {
    {"aplicacao", "Aplicação", S::BuscarPastaAplicacao},
    {"documentos", "Documentos", S::BuscarPastaMeusDocumentos},
    {"temporaria", "Temporária", S::BuscarPastaTempWindows},
    {"programas", "Programas", S::BuscarPastaArquivoDeProgramas},
    {"sistema", "Sistema", S::BuscarPastaSystemWindows},
    {"instalacao", "Instalação", S::BuscarUnidadeInstalacaoWindows},
    {"oryapps", "OryApps", S::BuscarPastaOryApps},
    {"orydados", "OryDados", S::BuscarPastaOryDados},
};

void Perguntar(std::span<const TPergunta> APerguntas, std::vector<TRetratoDoSistema::TItem>& AItens,
               TRetratoDoSistema& ARetrato) {
    for (const TPergunta& pergunta : APerguntas) {
        TRetratoDoSistema::TItem& item = AItens.emplace_back(TRetratoDoSistema::TItem{pergunta.Nome, pergunta.Titulo});
        try {
            std::u16string resposta = pergunta.Responder();
            if (!resposta.empty()) item.Valor = std::move(resposta);
        } catch (const OryUtils::Exception& erro) {
            ARetrato.Erros.push_back(erro.GetMensagem());
        }
    }
}

/// In the largest unit in which there is at least ten of it.
std::string EscreverEspaco(std::int64_t ABytes) {
    int formato = OryUtils::fbBytes;
    while (formato < OryUtils::fbTerabytes && S::FormatarBytes(ABytes, static_cast<TFormatoBytes>(formato + 1)) >= 10)
        ++formato;
    return std::to_string(S::FormatarBytes(ABytes, static_cast<TFormatoBytes>(formato))) + " " +
           OryUtils::ParaUtf8(OryUtils::CVetorFormatoBytes[static_cast<std::size_t>(formato)]);
}

std::string EscreverItens(const std::vector<TRetratoDoSistema::TItem>& AItens) {
    std::vector<std::vector<std::string>> linhas;
    for (const auto& item : AItens)
        linhas.push_back({item.Titulo, item.Valor ? ParaATela(*item.Valor, CMaiorTexto) : "-"});
    return EscreverTabela(linhas, 2);
}

void EscreverItensJson(std::string& ASaida, const std::vector<TRetratoDoSistema::TItem>& AItens) {
    ASaida += '{';
    for (const auto& item : AItens) {
        if (ASaida.back() != '{') ASaida += ',';
        EscreverTextoJson(ASaida, std::string_view(item.Nome));
        ASaida += ':';
        if (item.Valor)
            EscreverTextoJson(ASaida, *item.Valor);
        else
            ASaida += "null";
    }
    ASaida += '}';
}

}  // namespace

void DescreverSistema(TOpcoes AComando, TPedidoDeSistema& APedido) {
    AComando.Marca("--json", APedido.Json, "em JSON, espaços em bytes");
    AComando.Rodape("Saída do programa: 0 certo, 1 faltou alguma resposta do sistema.");
}

TRetratoDoSistema TirarRetrato() {
    TRetratoDoSistema retrato;
    Perguntar(CMaquina, retrato.Maquina, retrato);
    for (const std::u16string& unidade : S::BuscarListaDrivesComputador()) {
        const auto disco = S::BuscarInformacoesDiscoRigido(unidade, OryUtils::fbBytes);
        retrato.Discos.push_back({unidade, disco->NomeVolume, disco->EspacoTotal, disco->EspacoLivre});
    }
    Perguntar(CPastas, retrato.Pastas, retrato);
    return retrato;
}

std::string EscreverRetrato(const TRetratoDoSistema& ARetrato) {
    std::vector<std::vector<std::string>> discos{{"Unidade", "Volume", "Total", "Livre", "Usado"}};
    for (const TRetratoDoSistema::TDisco& disco : ARetrato.Discos)
        discos.push_back({ParaATela(disco.Unidade, CMaiorTexto), ParaATela(disco.Volume, CMaiorTexto),
                          EscreverEspaco(disco.Total), EscreverEspaco(disco.Livre),
                          EscreverEspaco(disco.Total - disco.Livre)});
    return EscreverItens(ARetrato.Maquina) + "\n" + EscreverTabela(discos, 2) + "\n" + EscreverItens(ARetrato.Pastas);
}

std::string EscreverRetratoJson(const TRetratoDoSistema& ARetrato) {
    std::string saida = R"({"maquina":)";
    EscreverItensJson(saida, ARetrato.Maquina);
    saida += R"(,"discos":[)";
    for (const TRetratoDoSistema::TDisco& disco : ARetrato.Discos) {
        if (saida.back() != '[') saida += ',';
        saida += R"({"unidade":)";
        EscreverTextoJson(saida, disco.Unidade);
        saida += R"(,"volume":)";
        EscreverTextoJson(saida, disco.Volume);
        saida += R"(,"total":)" + std::to_string(disco.Total) + R"(,"livre":)" + std::to_string(disco.Livre) + "}";
    }
    saida += R"(],"pastas":)";
    EscreverItensJson(saida, ARetrato.Pastas);
    return saida + "}";
}

int MostrarSistema(const TPedidoDeSistema& APedido, TAmbiente& AAmbiente) {
    const TRetratoDoSistema retrato = TirarRetrato();
    AAmbiente.Saida.Escrever(APedido.Json ? EscreverRetratoJson(retrato) + "\n" : EscreverRetrato(retrato));
    for (const std::u16string& erro : retrato.Erros) AAmbiente.Erro.Escrever(OryUtils::ParaUtf8(erro) + "\n");
    return retrato.Erros.empty() ? stTudoCerto : stInvalido;
}

}  // namespace Ory
