#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"

#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/platform/Executavel.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {
namespace {

// A machine without a network or a name still writes its logs.
std::u16string BuscarOuVazio(std::u16string (*ABuscar)()) {
    try {
        return ABuscar();
    } catch (const Exception&) {
        return {};
    }
}

}  // namespace

TAmbienteDoLog::~TAmbienteDoLog() = default;

TDateTime TAmbienteDoLog::BuscarAgora() { return Agora(); }

std::chrono::steady_clock::time_point TAmbienteDoLog::BuscarRelogio() { return std::chrono::steady_clock::now(); }

std::u16string TAmbienteDoLog::BuscarAplicacao() {
    return std::u16string(ExtrairNomeDoArquivo(Interno::BuscarArquivoExecutavel()));
}

std::u16string TAmbienteDoLog::BuscarVersao() {
    return TOryUtilsFiles::BuscarVersaoArquivo(Interno::BuscarArquivoExecutavel());
}

std::u16string TAmbienteDoLog::BuscarIP() { return BuscarOuVazio(TOryUtilsSistema::BuscarIPLocal); }

std::u16string TAmbienteDoLog::BuscarNomeDaMaquina() { return BuscarOuVazio(TOryUtilsSistema::BuscarNomeComputador); }

void TAmbienteDoLog::AoTentarGravar(int /*ATentativa*/) {}

void TAmbienteDoLog::AoEscrever(std::size_t /*ABytes*/) {}

}  // namespace OryUtils
