#include "oryutils/files/interno/AmbienteDoLog.hpp"

#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/platform/Executavel.hpp"
#include "oryutils/platform/Maquina.hpp"
#include "oryutils/platform/Rede.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils {
namespace {

std::u16string EscreverEndereco(const Plataforma::TEnderecoIP& AEndereco) {
    std::u16string texto;
    for (const std::uint8_t parte : AEndereco) texto += (texto.empty() ? u"" : u".") + InteiroParaTexto(parte);
    return texto;
}

class TAmbienteDoSistema final : public TAmbienteDoLog {
public:
    TDateTime BuscarAgora() override { return Agora(); }
    std::u16string BuscarAplicacao() override {
        return std::u16string(ExtrairNomeDoArquivo(Plataforma::BuscarArquivoExecutavel()));
    }
    std::u16string BuscarVersao() override {
        return TOryUtilsFiles::BuscarVersaoArquivo(Plataforma::BuscarArquivoExecutavel());
    }
    // A machine without a network or a name still writes its logs.
    std::u16string BuscarIP() override {
        std::u16string erro;
        const auto endereco = Plataforma::BuscarEnderecoDestaMaquina(erro);
        return endereco ? EscreverEndereco(*endereco) : std::u16string();
    }
    std::u16string BuscarNomeDaMaquina() override {
        std::uint32_t erro = 0;
        return Plataforma::BuscarNomeDaMaquina(erro).value_or(u"");
    }
};

}  // namespace

TAmbienteDoLog& BuscarAmbienteDoSistema() {
    static TAmbienteDoSistema ambiente;
    return ambiente;
}

}  // namespace OryUtils
