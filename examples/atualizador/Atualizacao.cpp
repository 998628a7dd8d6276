#include "atualizador/Atualizacao.hpp"

#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <array>
#include <utility>

namespace Exemplos {
namespace {

using namespace OryUtils;

void CriarClientes(TBanco& ABanco) {
    ABanco.Executar(
        u"CREATE TABLE CLIENTE (CODIGO INTEGER NOT NULL PRIMARY KEY, NOME VARCHAR(60) NOT NULL, CNPJ VARCHAR(18))");
}

/// The first version stored numbers as they were typed.
void FormatarNumeros(TBanco& ABanco) {
    std::vector<TLinha> linhas;
    for (const TLinha& linha : ABanco.Consultar(u"SELECT CODIGO, CNPJ FROM CLIENTE WHERE CNPJ IS NOT NULL")) {
        const std::u16string digitos = TOryUtilsStrings::ExtrairSomenteNumeros(linha[1].value());
        if (TOryUtilsValidacoes::ValidouCnpjCpf(tiCNPJ, digitos))
            linhas.push_back({TOryUtilsStrings::FormatarInscricaoFederal(tiCNPJ, digitos), linha[0]});
    }
    ABanco.ExecutarParaCada(u"UPDATE CLIENTE SET CNPJ = ? WHERE CODIGO = ?", linhas);
}

/// Refused by the database while a number stands there twice.
void UmClientePorNumero(TBanco& ABanco) { ABanco.Executar(u"CREATE UNIQUE INDEX CLIENTE_CNPJ ON CLIENTE (CNPJ)"); }

void AcrescentarMunicipio(TBanco& ABanco) { ABanco.Executar(u"ALTER TABLE CLIENTE ADD MUNICIPIO INTEGER"); }

struct TPasso {
    std::u16string_view Versao;
    void (*Executar)(TBanco&);
};

// In ascending order of their texts, each part with two digits. What has been released is never changed any more.
constexpr std::array CPassos{
    TPasso{u"01.00", CriarClientes},
    TPasso{u"01.01", FormatarNumeros},
    TPasso{u"01.02", UmClientePorNumero},
    TPasso{u"02.00", AcrescentarMunicipio},
};

}  // namespace

std::u16string_view BuscarVersaoMaisNova() noexcept { return CPassos.back().Versao; }

TAtualizacao::TAtualizacao(TBanco& ABanco) : FBanco(ABanco) {
    if (FBanco.Consultar(u"SELECT 1 FROM RDB$RELATIONS WHERE RDB$RELATION_NAME = 'ALTERACAO'").empty())
        FBanco.Executar(
            u"CREATE TABLE ALTERACAO (VERSAO VARCHAR(10) NOT NULL PRIMARY KEY, "
            u"QUANDO TIMESTAMP DEFAULT CURRENT_TIMESTAMP NOT NULL)");
}

std::u16string TAtualizacao::BuscarVersao() {
    return FBanco.Consultar(u"SELECT MAX(VERSAO) FROM ALTERACAO").at(0).at(0).value_or(u"");
}

bool TAtualizacao::Atualizar(std::u16string_view AVersaoMaxima) {
    TOryUtilsControleAlteracoes controle(AVersaoMaxima);
    controle.OnBuscarVersaoAtualAlteracao = TEventoBuscarVersaoAlteracao::De<&TAtualizacao::LerVersao>(*this);
    controle.OnExecutarMetodoAlteracao = TEventoExecutarMetodoAlteracao::De<&TAtualizacao::GravarVersao>(*this);
    controle.OnErroExecutarMetodoAlteracao = TEventoStatusExecucao::De<&TAtualizacao::Falhar>(*this);
    controle.OnStatusExecucao = TEventoStatusExecucao::De<&TAtualizacao::Dizer>(*this);
    FFalhou = false;
    const std::u16string atual = BuscarVersao();
    for (const TPasso& passo : CPassos) {
        // The runner ends at the first step that the database is not behind of, so what is done is left out.
        if (passo.Versao <= atual || passo.Versao > controle.GetVersaoMaxima()) continue;
        controle.Adicionar(passo.Versao, [this, &passo] {
            // The runner goes on behind a failure; this database must not: it would record a version with a gap.
            if (FFalhou) Abort();
            passo.Executar(FBanco);
        });
    }
    controle.Executar();
    return !FFalhou;
}

void TAtualizacao::LerVersao(TObjeto*, std::u16string& AVersao) { AVersao = BuscarVersao(); }

void TAtualizacao::GravarVersao(TObjeto*, std::u16string_view AVersao) {
    FBanco.ExecutarParaCada(u"INSERT INTO ALTERACAO (VERSAO) VALUES (?)", {{std::u16string(AVersao)}});
}

void TAtualizacao::Dizer(TObjeto* ASender, std::u16string_view ATexto) { OnDizer(ASender, ATexto); }

void TAtualizacao::Falhar(TObjeto* ASender, std::u16string_view AErro) {
    FFalhou = true;
    OnDizer(ASender, u"  não executada: " + std::u16string(AErro));
}

}  // namespace Exemplos
