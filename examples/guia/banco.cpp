// A database that is brought up to date by steps, each with the version that it leads to.
#include "pesquisa/Banco.hpp"

#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"

#include "guia/Escrever.hpp"

#include <string>

using namespace OryUtils;
using Exemplos::TBanco;

// [atualizador]
class TAtualizador {
public:
    explicit TAtualizador(TBanco& ABanco) : FBanco(ABanco) {}

    void Executar() {
        TOryUtilsControleAlteracoes controle(u"01.02");
        controle.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TAtualizador::LerVersao>(*this);
        controle.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TAtualizador::GravarVersao>(*this);
        controle.OnStatusExecucao = TEventoStatusExecucao::De<&TAtualizador::Dizer>(*this);
        controle.OnErroExecutarMetodoAlteracao = TEventoStatusExecucao::De<&TAtualizador::Dizer>(*this);

        Adicionar(controle, u"01.01", u"CREATE TABLE cliente (codigo INTEGER NOT NULL PRIMARY KEY, nome VARCHAR(60))");
        Adicionar(controle, u"01.02", u"ALTER TABLE cliente ADD email VARCHAR(80)");
        controle.Executar();
    }

private:
    void Adicionar(TOryUtilsControleAlteracoes& AControle, std::u16string_view AVersao, std::u16string_view ASql) {
        if (AVersao > BuscarVersao()) AControle.Adicionar(AVersao, [this, ASql] { FBanco.Executar(ASql); });
    }
    std::u16string BuscarVersao() { return FBanco.Consultar(u"SELECT MAX(versao) FROM versao")[0][0].value_or(u""); }

    void LerVersao(TObjeto*, std::u16string& AVersao) { AVersao = BuscarVersao(); }
    void GravarVersao(TObjeto*, std::u16string_view AVersao) {
        FBanco.ExecutarParaCada(u"INSERT INTO versao (versao) VALUES (?)", {{std::u16string(AVersao)}});
    }
    void Dizer(TObjeto*, std::u16string_view ATexto) { Escrever(ATexto); }

    TBanco& FBanco;
};
// [atualizador]

int main() {
    TBanco banco = TBanco::Criar("banco.fdb");
    banco.Executar(u"CREATE TABLE versao (versao VARCHAR(10) NOT NULL PRIMARY KEY)");
    // [uso]
    TAtualizador atualizador(banco);
    Escrever(u"Primeira vez:");
    atualizador.Executar();
    Escrever(u"Segunda vez:");
    atualizador.Executar();
    // [uso]
    Escrever(u"Fim.");
}
