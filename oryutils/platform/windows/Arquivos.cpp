#include "oryutils/platform/Arquivos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara) {
    const bool foi = ::MoveFileExW(ParaWide(DeUtf8(ADe)), ParaWide(DeUtf8(APara)), MOVEFILE_REPLACE_EXISTING);
    return foi ? efNenhum : ClassificarErroDoSistema(::GetLastError());
}

TErroFluxo ExcluirArquivo(const std::string& ANome) {
    if (::DeleteFileW(ParaWide(DeUtf8(ANome)))) return efNenhum;
    const TErroFluxo erro = ClassificarErroDoSistema(::GetLastError());
    return erro == efNaoExiste ? efNenhum : erro;
}

}  // namespace OryUtils::Interno
