#include "Comando.hpp"

#include "LinhaDeComando.hpp"
#include "chamar/Chamadas.hpp"

#include <exception>

namespace Ory {
namespace {

/// `ory chamar` with an operation, or with --lote alone, and `ory --versao` are what other programs run again and
/// again: they are recognised without building the description of the whole command line, which is asked about the
/// rest.
bool ChamarDireto(std::span<const std::string> AArgumentos, TAmbiente& AAmbiente, int& AStatus) {
    if (AArgumentos.size() == 1 && AArgumentos[0] == "--versao") {
        EscreverVersao(AAmbiente.Saida);
        AStatus = stTudoCerto;
        return true;
    }
    if (AArgumentos.size() < 2 || AArgumentos[0] != "chamar") return false;
    if (AArgumentos.size() == 2 && AArgumentos[1] == "--lote") {
        ChamarEmLote(AAmbiente.Entrada, AAmbiente.Saida);
        AStatus = stTudoCerto;
        return true;
    }
    const bool json = AArgumentos[1] == "--json" && AArgumentos.size() > 2;
    const std::size_t operacao = json ? 2 : 1;
    if (AArgumentos[operacao].starts_with('-')) return false;
    AStatus = ChamarUma(AArgumentos[operacao], AArgumentos.subspan(operacao + 1), json, AAmbiente);
    return true;
}

}  // namespace

int Executar(std::span<const std::string> AArgumentos, TAmbiente& AAmbiente) {
    try {
        int status = stTudoCerto;
        if (ChamarDireto(AArgumentos, AAmbiente, status)) return status;
        return ExecutarLinhaDeComando(AArgumentos, AAmbiente);
    } catch (const ESaidaFechada&) {
        return stFalha;
    } catch (const std::exception& erro) {
        try {
            AAmbiente.Erro.Escrever("ory: " + std::string(erro.what()) + "\n");
        } catch (const std::exception&) {  // nobody listens there either
        }
        return stFalha;
    }
}

}  // namespace Ory
