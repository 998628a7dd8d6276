#include "oryutils/ui/interno/Seletores.hpp"

#include <utility>

namespace OryUtils {
namespace {

constexpr std::u16string_view CProibidosEmNomes = u"<>:\"/\\|?*";

}  // namespace

std::vector<TFiltroArquivo> LerFiltro(std::u16string_view AFiltro) {
    const auto cortar = [&] {
        const auto fim = AFiltro.find(u'|');
        std::u16string parte(AFiltro.substr(0, fim));
        AFiltro.remove_prefix(fim == std::u16string_view::npos ? AFiltro.size() : fim + 1);
        return parte;
    };
    std::vector<TFiltroArquivo> filtros;
    while (!AFiltro.empty()) {
        auto descricao = cortar();
        if (AFiltro.empty()) break;
        filtros.push_back({std::move(descricao), cortar()});
    }
    return filtros;
}

std::vector<std::u16string> SelecionarCaminhos(TSelecaoDeCaminho ASelecao,
                                               const TOryUtilsDialogsSelecaoIOP& AParametros) {
    TPedidoDeCaminho pedido{.Selecao = ASelecao,
                            .Titulo = AParametros.Titulo,
                            .PastaInicial = AParametros.PastaInicial,
                            .NomeSugerido = AParametros.NomeSugerido,
                            .ExtensaoPadrao = AParametros.ExtensaoPadrao,
                            .Filtros = AParametros.Filtros};
    // The picker of Windows would not open with such a name.
    for (char16_t& c : pedido.NomeSugerido)
        if (c < u' ' || CProibidosEmNomes.find(c) != CProibidosEmNomes.npos) c = u'_';
    return ExigirToolkit().EscolherCaminhos(pedido);
}

std::u16string SelecionarCaminho(TSelecaoDeCaminho ASelecao, const TOryUtilsDialogsSelecaoIOP& AParametros) {
    auto caminhos = SelecionarCaminhos(ASelecao, AParametros);
    return caminhos.empty() ? std::u16string() : std::move(caminhos.front());
}

std::u16string SelecionarArquivo(std::u16string_view APastaInicial, std::u16string_view AFiltro) {
    return ExigirToolkit().EscolherArquivo(APastaInicial, LerFiltro(AFiltro)).value_or(u"");
}

std::u16string SelecionarPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    return ExigirToolkit().EscolherPasta(ATitulo, APastaInicial).value_or(u"");
}

}  // namespace OryUtils
