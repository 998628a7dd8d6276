// A service: installed, asked for, removed.
//   servico instalar PROGRAM | estado | remover     several may follow one another; the status is that of the last
#include "oryutils/system/OryUtilsSystem.hpp"

#include "guia/Escrever.hpp"

#include <span>
#include <string>
#include <string_view>

using namespace OryUtils;

namespace {

constexpr std::u16string_view CServico = u"OryGuiaEventos";

}  // namespace

// [estado]
bool MostrarEstado() {
    const TStatusServicoWindows estado = TOryUtilsSistema::BuscarStatusServico(u"", CServico);
    Escrever(std::u16string(CServico) + u": " + std::u16string(CVetorStatusServicoWindows[estado]));
    return estado != sswErro;
}
// [estado]

// [instalar]
bool Instalar(std::u16string_view AExecutavel) {
    const TResultStatus resultado = TOryUtilsSistema::InstalouServico(CServico, u"Servidor de eventos", AExecutavel);
    if (!resultado.Status) {
        Escrever(resultado.Mensagem);
        return false;
    }
    return MostrarEstado();
}
// [instalar]

// [remover]
bool Remover() {
    TOryUtilsSistema::PararServico(u"", CServico, 30);
    const TResultStatus resultado = TOryUtilsSistema::DesinstalouServico(CServico);
    Escrever(resultado.Status ? u"Serviço removido." : resultado.Mensagem);
    return resultado.Status;
}
// [remover]

int main(int AQuantos, char** AArgumentos) {
    bool certo = true;
    const std::span argumentos(AArgumentos, static_cast<std::size_t>(AQuantos));
    for (std::size_t i = 1; i < argumentos.size(); ++i) {
        const std::string_view acao = argumentos[i];
        Escrever(u"> servico " + DeUtf8(acao));
        if (acao == "estado") certo = MostrarEstado();
        if (acao == "instalar" && i + 1 < argumentos.size()) certo = Instalar(DeUtf8(argumentos[++i]));
        if (acao == "remover") certo = Remover();
    }
    return certo ? 0 : 1;
}
