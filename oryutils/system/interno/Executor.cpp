#include "oryutils/system/interno/Executor.hpp"

#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils::Interno {

const TExecutorDeComando& ExecutorDoSistema() {
    static const TExecutorDeComando executor = [](std::u16string_view ALinhaDeComando,
                                                  std::vector<std::u16string>& ASaida) {
        TOryUtilsSistema::ExecutarComandoComRetorno(ALinhaDeComando, ASaida);
    };
    return executor;
}

std::u16string JuntarLinhas(const std::vector<std::u16string>& ALinhas) {
    std::u16string texto;
    for (std::size_t i = 0; i < ALinhas.size(); ++i) {
        if (i > 0) texto += u"\r\n";
        texto += ALinhas[i];
    }
    return texto;
}

std::u16string BuscarTextoDoComando(const TExecutorDeComando& AExecutor, std::u16string_view ALinhaDeComando) {
    std::vector<std::u16string> linhas;
    AExecutor(ALinhaDeComando, linhas);
    return JuntarLinhas(linhas);
}

}  // namespace OryUtils::Interno
