#include "oryutils/ui/interno/Seletores.hpp"

namespace OryUtils {

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

std::u16string SelecionarArquivo(std::u16string_view APastaInicial, std::u16string_view AFiltro) {
    return ExigirToolkit().EscolherArquivo(APastaInicial, LerFiltro(AFiltro)).value_or(u"");
}

std::u16string SelecionarPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    return ExigirToolkit().EscolherPasta(ATitulo, APastaInicial).value_or(u"");
}

}  // namespace OryUtils
