#include "system/RegistroDeTeste.hpp"

#include "oryutils/characters/Caixa.hpp"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
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

// Good enough for values of one line.
std::u16string LerDoSistema(std::u16string_view AChave, std::u16string_view AValor) {
    std::ifstream arquivo(std::string(std::getenv("ORYUTILS_REGISTRO")) + "/HKEY_LOCAL_MACHINE.reg", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(arquivo), {}};
    std::u16string texto;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2)
        texto +=
            static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
    const auto minusculas = OryUtils::MinusculaDe(texto);
    const auto secao = OryUtils::MinusculaDe(u"\r\n[HKEY_LOCAL_MACHINE\\" + std::u16string(AChave) + u"]\r\n");
    std::size_t inicio = minusculas.find(secao);
    if (inicio == texto.npos) return {};
    const std::size_t proxima = texto.find(u"\r\n[", inicio + secao.size() - 2);
    const std::u16string linha = u"\r\n\"" + std::u16string(AValor) + u"\"=";
    inicio = texto.find(linha, inicio);
    if (inicio >= proxima) return {};
    inicio += linha.size();
    return texto.substr(inicio, texto.find(u"\r\n", inicio) - inicio);
}

}  // namespace Teste
