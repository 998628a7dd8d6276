// A batch that checks customers and keeps a log of its run.
//   log [FOLDER]     where the log goes, the current folder where none is given
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "guia/Escrever.hpp"

#include <array>
#include <string>

using namespace OryUtils;

namespace {

struct TCliente {
    std::u16string_view Codigo, CNPJ;
};

constexpr std::array<TCliente, 3> CClientes{{
    {u"1520", u"11.222.333/0001-81"},
    {u"1521", u"11.222.333/0001-80"},
    {u"1522", u"12.ABC.345/01DE-35"},
}};

}  // namespace

// [tela]
struct TTela {
    int Erros = 0;

    void MostrarLinha(TObjeto*, std::u16string_view, TColor ACor) { Erros += ACor == CVermelho ? 1 : 0; }

    static constexpr TColor CVermelho = 0x000000FF;
};
// [tela]

void ConferirClientes(std::u16string_view AArquivo) {
    TTela tela;
    // [log]
    TOryUtilsArquivoLog log(AArquivo);
    log.SetTipoPeriodicidade(tplDiario);
    log.SetModoGravacao(mgAcrescentar);
    log.SetSalvarAutomaticamente(true);
    log.SetOnStatus(TEventoOnStatusLog::De<&TTela::MostrarLinha>(tela));
    for (const auto& [codigo, cnpj] : CClientes) {
        const std::u16string cliente = u"Cliente " + std::u16string(codigo);
        if (ValidouCnpjAlfanumerico(cnpj))
            log.Adicionar(cliente + u" conferido", clWindowText);
        else
            log.Adicionar(cliente + u" recusado: CNPJ " + std::u16string(cnpj) + u" inválido", TTela::CVermelho);
    }
    log.FinalizarLog();
    // [log]
    Escrever(log.GetTexto());
    Escrever(tela.Erros == 1 ? u"Um cliente recusado." : u"Quantidade inesperada de clientes recusados!");
    if (!log.EstahSalvo()) Escrever(u"O log não pôde ser gravado.");
}

int main() {
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    ConferirClientes(u"logs/Conferencia.txt");
}
