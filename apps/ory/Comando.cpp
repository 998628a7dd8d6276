#include "Comando.hpp"

#include "LinhaDeComando.hpp"
#include "chamar/Chamadas.hpp"

#include <exception>

namespace Ory {
namespace {

/// Runs `ory chamar OPERACAO ...`, `ory chamar --lote` and `ory --versao`; false for any other command line. Behind the
/// operation every argument is a value, also one that starts with "-", so these are no options to be parsed.
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
