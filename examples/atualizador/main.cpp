// Brings a database up to date: the steps that it has not seen run in order, and a table records each.
//   atualizador [FILE]     atualizador.fdb where none is given; created when it is missing
// Status: 0 up to date, 1 a step failed.
#include "oryutils/runtime/Utf.hpp"

#include "atualizador/Atualizacao.hpp"

#include <cstdio>
#include <exception>

namespace {

struct TTela {
    void Mostrar(OryUtils::TObjeto*, std::u16string_view ATexto) { std::puts(OryUtils::ParaUtf8(ATexto).c_str()); }
};

bool Executar(const std::filesystem::path& AArquivo) {
    using Exemplos::TBanco;
    TBanco banco = std::filesystem::exists(AArquivo) ? TBanco::Abrir(AArquivo) : TBanco::Criar(AArquivo);
    TTela tela;
    Exemplos::TAtualizacao atualizacao(banco);
    atualizacao.OnDizer = OryUtils::TEventoStatusExecucao::De<&TTela::Mostrar>(tela);
    const bool atualizado = atualizacao.Atualizar(Exemplos::BuscarVersaoMaisNova());
    tela.Mostrar(nullptr, u"O banco está na versão " + atualizacao.BuscarVersao() + u".");
    return atualizado;
}

}  // namespace

int main(int AQuantos, char** AArgumentos) try {
    return Executar(AQuantos > 1 ? AArgumentos[1] : "atualizador.fdb") ? 0 : 1;
} catch (const std::exception& erro) {
    std::fprintf(stderr, "atualizador: %s\n", erro.what());
    return 1;
}
