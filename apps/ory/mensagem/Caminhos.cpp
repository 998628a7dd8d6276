#include "mensagem/Caminhos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Opcoes.hpp"

namespace Ory {
namespace {

using namespace OryUtils;

std::vector<TFiltroArquivo> LerFiltros(const std::vector<std::string>& AFiltros) {
    std::vector<TFiltroArquivo> filtros;
    for (const std::string& filtro : AFiltros) {
        const std::size_t igual = filtro.rfind('=');
        if (igual == std::string::npos || igual + 1 == filtro.size())
            throw EFalha("--filtro espera descrição=máscaras, veio " + filtro);
        filtros.push_back({DeUtf8(filtro.substr(0, igual)), DeUtf8(filtro.substr(igual + 1))});
    }
    return filtros;
}

// "txt" of "*.txt;*.csv"; empty where the first mask names no one extension.
std::u16string BuscarExtensao(const std::vector<TFiltroArquivo>& AFiltros) {
    if (AFiltros.empty() || !AFiltros.front().Mascara.starts_with(u"*.")) return {};
    const std::u16string& mascara = AFiltros.front().Mascara;
    const std::u16string extensao = mascara.substr(2, mascara.find(u';') - 2);
    return extensao.find_first_of(u"*?") == extensao.npos ? extensao : u"";
}

std::vector<std::u16string> Escolher(const TPedidoDeCaminhos& APedido, const TOryUtilsDialogsSelecaoIOP& AParametros) {
    if (APedido.Arquivos) return GOryUtilsDialogs->EscolherArquivos(AParametros);
    const std::u16string escolhido = APedido.Pasta    ? GOryUtilsDialogs->EscolherPasta(AParametros)
                                     : APedido.Salvar ? GOryUtilsDialogs->EscolherArquivoParaSalvar(AParametros)
                                                      : GOryUtilsDialogs->EscolherArquivo(AParametros);
    return escolhido.empty() ? std::vector<std::u16string>{} : std::vector{escolhido};
}

}  // namespace

void DescreverCaminhos(TOpcoes AComando, TPedidoDeCaminhos& APedido) {
    AComando.Marca("--arquivo", APedido.Arquivo, "em vez de botões pede um arquivo; TEXTO é o título da janela");
    AComando.Marca("--arquivos", APedido.Arquivos, "pede um ou mais arquivos");
    AComando
        .Valor(
            "--salvar", APedido.NomeSugerido,
            "pede o nome de um arquivo a gravar, sugerindo este (pode ser \"\"); pergunta\nantes de substituir um que "
            "existe, e não grava nada")
        .AoLer([&APedido] { APedido.Salvar = true; });
    AComando.Marca("--pasta", APedido.Pasta, "pede uma pasta");
    AComando
        .Valor("--filtro", APedido.Filtros,
               "descrição=máscaras dos arquivos a mostrar: \"Notas=*.xml;*.txt\"; repita para\ncada um. A extensão do "
               "primeiro completa o nome de --salvar")
        .SemMaisValores();
    AComando.Valor("--pasta-inicial", APedido.PastaInicial, "onde a escolha começa");
}

bool PedirCaminhos(const TPedidoDeCaminhos& APedido, const std::string& ATitulo, TAmbiente& AAmbiente) {
    const auto filtros = LerFiltros(APedido.Filtros);
    const auto caminhos = Escolher(APedido, {.Titulo = DeUtf8(ATitulo),
                                             .PastaInicial = DeUtf8(APedido.PastaInicial),
                                             .Filtros = filtros,
                                             .NomeSugerido = DeUtf8(APedido.NomeSugerido),
                                             .ExtensaoPadrao = BuscarExtensao(filtros)});
    for (const std::u16string& caminho : caminhos) AAmbiente.Saida.Escrever(ParaUtf8(caminho) + "\n");
    return !caminhos.empty();
}

}  // namespace Ory
