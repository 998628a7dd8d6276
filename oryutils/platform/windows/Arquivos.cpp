#include "oryutils/platform/Arquivos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/CaminhoDoSistema.hpp"
#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara) {
    const bool foi = ::MoveFileExW(CaminhoDoSistema(DeUtf8(ADe)).c_str(), CaminhoDoSistema(DeUtf8(APara)).c_str(),
                                   MOVEFILE_REPLACE_EXISTING);
    return foi ? efNenhum : ClassificarErroDoSistema(::GetLastError());
}

TErroFluxo ExcluirArquivo(const std::string& ANome) {
    if (::DeleteFileW(CaminhoDoSistema(DeUtf8(ANome)).c_str())) return efNenhum;
    const TErroFluxo erro = ClassificarErroDoSistema(::GetLastError());
    return erro == efNaoExiste ? efNenhum : erro;
}

}  // namespace OryUtils::Interno
