#include "system/RegistroDeTeste.hpp"

#include "oryutils/readers/ArquivoReg.hpp"

#include "files/ApoioArquivos.hpp"

#include <cstdlib>
#include <unistd.h>

namespace Teste {

TRegistroIsolado::TRegistroIsolado() {
    // In memory where there is such a folder: every write waits for the disk.
    const bool memoria = ::access("/dev/shm", W_OK) == 0;
    const auto pasta = memoria ? std::filesystem::path("/dev/shm") : std::filesystem::temp_directory_path();
    std::string modelo = (pasta / "oryutils-registro-XXXXXX").string();
    Pasta = ::mkdtemp(modelo.data());
    ::setenv("ORYUTILS_REGISTRO", Pasta.c_str(), 1);
}

TRegistroIsolado::~TRegistroIsolado() {
    ::unsetenv("ORYUTILS_REGISTRO");
    std::filesystem::remove_all(Pasta);
}

std::optional<OryUtils::Interno::TDadoRegistro> LerDadoDoSistema(std::u16string_view AChave,
                                                                 std::u16string_view AValor) {
    const auto nome = std::filesystem::path(std::getenv("ORYUTILS_REGISTRO")) / "HKEY_LOCAL_MACHINE.reg";
    auto arquivo = OryUtils::Interno::LerArquivoReg(LerBytes(nome));
    const auto* chave = arquivo ? arquivo->Topo.Buscar(u"HKEY_LOCAL_MACHINE\\" + std::u16string(AChave)) : nullptr;
    if (!chave || !chave->Valores.contains(AValor)) return {};
    return chave->Valores.find(AValor)->second;
}

}  // namespace Teste
