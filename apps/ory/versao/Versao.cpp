#include "versao/Versao.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"

#include "Opcoes.hpp"
#include "TextoNaTela.hpp"
#include "operations/Conversao.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace Ory {
namespace {

using OryUtils::DeUtf8;
using OryUtils::ParaUtf8;
using OryUtils::TArquivoInfo;
using OryUtils::TOryUtilsFiles;

/// What a file says, in the order of the card and of the JSON object.
struct TDado {
    std::string_view Nome;    // in JSON
    std::string_view Rotulo;  // on the card
    std::u16string (TArquivoInfo::*Buscar)() const;
};
constexpr std::array CDados{
    TDado{"versao", "Versão", &TArquivoInfo::GetVersao},
    TDado{"nome_produto", "Produto", &TArquivoInfo::GetNomeProduto},
    TDado{"versao_produto", "Versão do produto", &TArquivoInfo::GetVersaoProduto},
    TDado{"descricao", "Descrição", &TArquivoInfo::GetDescricao},
    TDado{"nome_companhia", "Companhia", &TArquivoInfo::GetNomeCompanhia},
    TDado{"nome_interno", "Nome interno", &TArquivoInfo::GetNomeInterno},
    TDado{"nome_original", "Nome original", &TArquivoInfo::GetNomeOriginal},
    TDado{"legal_copyright", "Direitos autorais", &TArquivoInfo::GetLegalCopyright},
    TDado{"legal_trademarks", "Marcas", &TArquivoInfo::GetLegalTrademarks},
    TDado{"comentarios", "Comentários", &TArquivoInfo::GetComentarios},
    TDado{"versao_minima_banco", "Versão mínima do banco", &TArquivoInfo::GetVersaoMinimaBanco},
    TDado{"versao_maxima_conversao", "Versão máxima de conversão", &TArquivoInfo::GetVersaoMaximaConversao},
};

constexpr std::size_t CMaiorTexto = 500;

std::string EscreverData(OryUtils::TDateTime AData) {
    return AData == 0 ? "" : ParaUtf8(OryUtils::FormatarDataHora(u"dd/mm/yyyy hh:nn:ss", AData));
}

/// "*" stands for any characters, "?" for one.
bool Combina(std::u16string_view APadrao, std::u16string_view ATexto) {
    std::size_t p = 0, t = 0;
    std::size_t asterisco = APadrao.npos, retomada = 0;
    while (t < ATexto.size()) {
        if (p < APadrao.size() && APadrao[p] == u'*') {
            asterisco = p++;
            retomada = t;
        } else if (p < APadrao.size() && (APadrao[p] == u'?' || APadrao[p] == ATexto[t])) {
            ++p;
            ++t;
        } else if (asterisco != APadrao.npos) {
            p = asterisco + 1;
            t = ++retomada;
        } else {
            return false;
        }
    }
    return APadrao.find_first_not_of(u'*', p) == APadrao.npos;
}

/// The files that a name with "*" or "?" stands for, in order: not every shell puts them there itself. Any other name
/// stands for itself, and so does one that nothing matches.
std::vector<std::u16string> Expandir(const std::string& AArquivo) {
    const std::u16string nome = DeUtf8(AArquivo);
    const std::u16string padrao = OryUtils::MinusculaDe(OryUtils::ExtrairNomeDoArquivo(nome));
    std::vector<std::u16string> arquivos;
    if (padrao.find_first_of(u"*?") != padrao.npos && !OryUtils::Interno::ExisteArquivo(nome)) {
        const std::u16string pasta(OryUtils::ExtrairPastaDoArquivo(nome));
        std::error_code erro;
        for (const auto& entrada : std::filesystem::directory_iterator(pasta.empty() ? u"." : pasta, erro)) {
            // By way of UTF-8: a name that is not well-formed is no reason to stop.
            const std::u8string bytes = entrada.path().filename().u8string();
            const std::u16string achado = DeUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
            if (entrada.is_regular_file(erro) && Combina(padrao, OryUtils::MinusculaDe(achado)))
                arquivos.push_back(pasta + achado);
        }
        std::sort(arquivos.begin(), arquivos.end());
    }
    if (arquivos.empty()) arquivos.push_back(nome);
    return arquivos;
}

TArquivoInfo Ler(std::u16string_view AArquivo) {
    TArquivoInfo info;
    info.SetArquivo(AArquivo);
    return info;
}

void EscreverCartao(const TArquivoInfo& AInfo, TAmbiente& AAmbiente) {
    std::vector<std::pair<std::string_view, std::string>> linhas;
    for (const TDado& dado : CDados) linhas.emplace_back(dado.Rotulo, ParaATela((AInfo.*dado.Buscar)(), CMaiorTexto));
    if (AInfo.GetNaoLiberarPacote()) linhas.emplace_back("Liberação", "retida");
    linhas.emplace_back("Tamanho", ParaUtf8(AInfo.GetTamanhoFormatado()));
    linhas.emplace_back("Modificado em", EscreverData(AInfo.GetDataModificacao()));
    std::erase_if(linhas, [](const auto& l) { return l.second.empty(); });
    std::size_t largura = 0;
    for (const auto& [rotulo, valor] : linhas) largura = std::max(largura, ContarCaracteres(rotulo));
    const auto cor = [&](std::string_view ACor) { return AAmbiente.Cores ? ACor : std::string_view(); };
    std::string saida(cor(CNegrito));
    saida += ParaATela(AInfo.GetNome(), CMaiorTexto);
    saida.append(cor(CNormal)) += '\n';
    for (const auto& [rotulo, valor] : linhas) saida += "  " + AEsquerda(rotulo, largura) + "  " + valor + "\n";
    AAmbiente.Saida.Escrever(saida);
}

/// The end of a name says more than its beginning.
std::string EncurtarNaFrente(const std::string& ANome, std::size_t AMaior) {
    std::u16string nome = DeUtf8(ANome);
    if (nome.size() > AMaior) nome = u"…" + nome.substr(nome.size() - AMaior + 1);
    return ParaATela(nome, AMaior);
}

using TLinhaDaTabela = std::array<std::string, 5>;

void EscreverTabela(const std::vector<TArquivoInfo>& AInfos, TAmbiente& AAmbiente) {
    constexpr std::size_t CColunaDoTamanho = 2;
    constexpr std::size_t CMaiorNome = 36;
    constexpr std::size_t CMenorProduto = 12;
    std::vector<TLinhaDaTabela> tabela{{"arquivo", "versão", "tamanho", "modificado em", "produto"}};
    for (const TArquivoInfo& info : AInfos) {
        const std::string versao = ParaATela(info.GetVersao(), CMaiorNome);
        tabela.push_back({EncurtarNaFrente(ParaUtf8(info.GetArquivo()), CMaiorNome), versao.empty() ? "-" : versao,
                          ParaUtf8(info.GetTamanhoFormatado()), EscreverData(info.GetDataModificacao()),
                          ParaATela(info.GetNomeProduto(), CMaiorTexto)});
    }
    TLinhaDaTabela::size_type ultima = tabela.front().size() - 1;
    std::array<std::size_t, std::tuple_size_v<TLinhaDaTabela>> larguras{};
    std::size_t ocupado = 2 * ultima;
    for (std::size_t i = 0; i < ultima; ++i) {
        for (const TLinhaDaTabela& linha : tabela) larguras[i] = std::max(larguras[i], ContarCaracteres(linha[i]));
        ocupado += larguras[i];
    }
    const auto disponivel = static_cast<std::size_t>(std::max(AAmbiente.Largura, 0));
    const std::size_t resto = std::max(disponivel, ocupado + CMenorProduto) - ocupado;
    const auto cor = [&](std::string_view ACor) { return AAmbiente.Cores ? ACor : std::string_view(); };
    std::string saida;
    for (TLinhaDaTabela& linha : tabela) {
        const bool titulo = &linha == &tabela.front();
        std::string texto;
        for (std::size_t i = 0; i < ultima; ++i)
            texto +=
                (i == CColunaDoTamanho ? ADireita(linha[i], larguras[i]) : AEsquerda(linha[i], larguras[i])) + "  ";
        texto += ParaATela(DeUtf8(linha[ultima]), resto);
        texto.erase(texto.find_last_not_of(' ') + 1);
        saida.append(titulo ? cor(CNegrito) : std::string_view()).append(texto);
        saida.append(titulo ? cor(CNormal) : std::string_view()) += '\n';
    }
    AAmbiente.Saida.Escrever(saida);
}

void EscreverData(std::string& ASaida, std::string_view ANome, OryUtils::TDateTime AData) {
    ASaida.append(",\"").append(ANome) += "\":";
    if (AData == 0)
        ASaida += "null";
    else
        EscreverJson(ASaida, AData);
}

std::string DescreverEmJson(const TArquivoInfo& AInfo) {
    std::string saida = R"({"arquivo":)";
    EscreverTextoJson(saida, AInfo.GetArquivo());
    saida += R"(,"nome":)";
    EscreverTextoJson(saida, AInfo.GetNome());
    for (const TDado& dado : CDados) {
        saida.append(",\"").append(dado.Nome) += "\":";
        EscreverTextoJson(saida, (AInfo.*dado.Buscar)());
    }
    saida += R"(,"nao_liberar_pacote":)";
    EscreverJson(saida, AInfo.GetNaoLiberarPacote());
    saida += R"(,"extensao":)";
    EscreverTextoJson(saida, AInfo.GetExtensao());
    saida += R"(,"tamanho":)" + ParaUtf8(AInfo.GetTamanho());
    EscreverData(saida, "data", AInfo.GetData());
    EscreverData(saida, "data_modificacao", AInfo.GetDataModificacao());
    return saida + "}";
}

void EscreverEmJson(const std::vector<TArquivoInfo>& AInfos, TAmbiente& AAmbiente) {
    AAmbiente.Saida.Escrever("[");
    for (const TArquivoInfo& info : AInfos)
        AAmbiente.Saida.Escrever((&info == &AInfos.front() ? "" : ",\n ") + DescreverEmJson(info));
    AAmbiente.Saida.Escrever("]\n");
}

/// Why nothing can be said of a file; empty when something can.
std::string BuscarProblema(const std::u16string& AArquivo) {
    if (OryUtils::Aparar(AArquivo).empty()) return "o nome do arquivo está vazio";
    const std::string nome = ParaUtf8(AArquivo);
    if (OryUtils::Interno::ExistePasta(AArquivo)) return "é uma pasta: " + nome;
    if (!OryUtils::Interno::ExisteArquivo(AArquivo)) return "arquivo não encontrado: " + nome;
    const auto erro = OryUtils::Interno::TFluxo().AbrirArquivoParaLer(AArquivo);
    return erro == OryUtils::Interno::efNenhum ? "" : "não foi possível ler " + nome;
}

/// A text of digits, points and commas is a version itself; any other names a file. Blank is most likely the work of a
/// script without a value.
std::u16string LerVersao(const std::string& ATexto) {
    const std::u16string texto = DeUtf8(ATexto);
    if (OryUtils::Aparar(texto).empty()) throw EFalha("uma das versões está vazia");
    std::u16string versao = texto;
    if (texto.find_first_not_of(u" 0123456789.,") != texto.npos) {
        if (!OryUtils::Interno::ExisteArquivo(texto)) throw EFalha(ATexto + " não é uma versão nem um arquivo");
        if (const std::string problema = BuscarProblema(texto); !problema.empty()) throw EFalha(problema);
        versao = TOryUtilsFiles::BuscarVersaoArquivo(texto);
        if (versao.empty()) throw EFalha(ATexto + " não tem versão");
    }
    try {
        TOryUtilsFiles::CompararVersao(versao, versao);
    } catch (const OryUtils::EConvertError& erro) {
        const std::string dono = versao == texto ? "" : " de " + ATexto;
        throw EFalha("a versão " + ParaUtf8(versao) + dono + " não serve: " + erro.what());
    }
    return versao;
}

int Comparar(const TPedidoDeVersao& APedido, TAmbiente& AAmbiente) {
    if (!APedido.Arquivos.empty()) throw EFalha("--comparar leva só as duas versões");
    const std::u16string a = LerVersao(APedido.Comparar[0]);
    const std::u16string b = LerVersao(APedido.Comparar[1]);
    std::string_view resposta = "igual";
    TStatusDeVersao status = svIgual;
    switch (TOryUtilsFiles::CompararVersao(a, b)) {
        case OryUtils::fsMajor:
            resposta = "maior";
            status = svMaior;
            break;
        case OryUtils::fsMinor:
            resposta = "menor";
            status = svMenor;
            break;
        default:
            break;
    }
    std::string saida(resposta);
    if (APedido.Json) {
        saida = R"({"a":)";
        EscreverTextoJson(saida, a);
        saida += R"(,"b":)";
        EscreverTextoJson(saida, b);
        saida.append(R"(,"resultado":")").append(resposta) += "\"}";
    }
    AAmbiente.Saida.Escrever(saida + "\n");
    return status;
}

}  // namespace

void DescreverVersao(TOpcoes AComando, TPedidoDeVersao& APedido) {
    AComando.Valor("ARQUIVO", APedido.Arquivos, "executáveis, bibliotecas, .ini e .html; um só mostra tudo");
    AComando.Valor("--comparar", APedido.Comparar, "A B: duas versões, ou arquivos que têm uma")
        .ComValores(2)
        .SemMaisValores();
    AComando.Marca("--json", APedido.Json, "em JSON: uma lista com tudo o que cada arquivo diz");
    AComando.Rodape(
        "Saída do programa: 0 certo, 2 algum arquivo não pôde ser lido ou a chamada está errada.\n"
        "Com --comparar escreve igual, maior ou menor (A em relação a B): 0 igual, 1 maior, 3 menor, 2 falha.\n\n"
        "Exemplos:\n"
        "  ory versao Folha.exe\n"
        "  ory versao *.dll *.exe\n"
        "  ory versao --comparar Folha.exe 7.2.0.15");
}

int MostrarVersao(const TPedidoDeVersao& APedido, TAmbiente& AAmbiente) {
    if (!APedido.Comparar.empty()) return Comparar(APedido, AAmbiente);
    if (APedido.Arquivos.empty()) throw EFalha("falta o arquivo; veja ory versao --ajuda");
    std::vector<TArquivoInfo> infos;
    std::size_t pedidos = 0;
    for (const std::string& pedido : APedido.Arquivos)
        for (const std::u16string& arquivo : Expandir(pedido)) {
            ++pedidos;
            const std::string problema = BuscarProblema(arquivo);
            if (problema.empty())
                infos.push_back(Ler(arquivo));
            else
                AAmbiente.Erro.Escrever("ory: " + problema + "\n");
        }
    if (APedido.Json)
        EscreverEmJson(infos, AAmbiente);
    else if (pedidos > 1 && !infos.empty())
        EscreverTabela(infos, AAmbiente);
    else if (!infos.empty())
        EscreverCartao(infos.front(), AAmbiente);
    return infos.size() == pedidos ? stTudoCerto : stFalha;
}

}  // namespace Ory
