#include "oryutils/files/interno/AmbienteDoLog.hpp"

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

class TAmbienteDoSistema final : public TAmbienteDoLog {
public:
    TDateTime BuscarAgora() override { return Agora(); }
    std::u16string BuscarAplicacao() override {
        return std::u16string(ExtrairNomeDoArquivo(Interno::BuscarArquivoExecutavel()));
    }
    std::u16string BuscarVersao() override {
        return TOryUtilsFiles::BuscarVersaoArquivo(Interno::BuscarArquivoExecutavel());
    }
    std::u16string BuscarIP() override { return BuscarOuVazio(TOryUtilsSistema::BuscarIPLocal); }
    std::u16string BuscarNomeDaMaquina() override { return BuscarOuVazio(TOryUtilsSistema::BuscarNomeComputador); }
};

}  // namespace

TAmbienteDoLog& BuscarAmbienteDoSistema() {
    static TAmbienteDoSistema ambiente;
    return ambiente;
}

}  // namespace OryUtils
