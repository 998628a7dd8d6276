// Any bytes as a file to check, with any options: blocks of any size, read in any pieces and by any number of threads,
// give one answer, and records are what a slow reader says they are.
#include "oryutils/runtime/Formatos.hpp"

#include "../tests/ory/CsvDevagar.hpp"
#include "Comum.hpp"
#include "conferir/Conferencia.hpp"
#include "conferir/Relatorio.hpp"

#include <optional>

using namespace Ory;

namespace {

constexpr std::string_view CMarca = "\xEF\xBB\xBF";

/// The report, the answer in JSON and the rows written for ATipo none; the verdicts on a column of ATipo otherwise.
std::string Rodar(std::string_view ABytes, const TOpcoesDeConferencia& AOpcoes, std::size_t APedaco,
                  std::optional<TTipoColuna> ATipo = {}) {
    TEntradaDeTexto entrada(ABytes, APedaco);
    TSaidaDeTexto saida;
    try {
        if (ATipo) {
            EscreverVereditos(entrada, saida, *ATipo, AOpcoes);
            return saida.Texto;
        }
        const TResumo resumo = ConferirCsv(entrada, &saida, AOpcoes);
        return EscreverRelatorio(resumo, "fuzz", 80, true) + EscreverRelatorioJson(resumo, "fuzz") + saida.Texto;
    } catch (const EFalha& erro) {
        return erro.what();
    }
}

void ConferirLeitura(const std::string& ABytes, char ADelimitador, const TLimites& ALimites, std::size_t APedaco) {
    TEntradaDeTexto entrada(ABytes, APedaco);
    TLeitorDeBlocos blocos(entrada, ALimites);
    TCortadorDeRegistros cortador(ADelimitador);
    TRegistros registros;
    std::string bloco;
    TLeitorDeBlocos::TLeitura leitura = TLeitorDeBlocos::leBloco;
    while ((leitura = blocos.Ler(bloco, cortador)) == TLeitorDeBlocos::leBloco) {
        TLeitorDeRegistros leitor(bloco, ADelimitador, 4096);
        while (leitor.Proximo()) registros.emplace_back(leitor.GetCampos().begin(), leitor.GetCampos().end());
    }
    Fuzz::Exigir((leitura == TLeitorDeBlocos::leAspasAbertas) == cortador.EstahEntreAspas());
    if (leitura == TLeitorDeBlocos::leFim) Fuzz::Exigir(registros == LerDevagar(ABytes, ADelimitador));

    // What is written reads back.
    std::string escrito;
    for (const auto& registro : registros) {
        for (std::size_t i = 0; i < registro.size(); ++i) {
            if (i) escrito += ADelimitador;
            EscreverCampo(escrito, registro[i], ADelimitador);
        }
        escrito += '\n';
    }
    Fuzz::Exigir(LerDevagar(escrito, ADelimitador) == registros);
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    const std::uint8_t chaves = AEntrada.Byte();
    const auto tipo = static_cast<TTipoColuna>(1 + AEntrada.Byte() % tcNcm);
    const std::size_t bloco = 4 + AEntrada.Byte() % 64;
    const std::size_t pedaco = 1 + AEntrada.Byte() % 16;
    const std::string bytes = AEntrada.Bytes();

    TOpcoesDeConferencia opcoes;
    opcoes.Tarefas = 0;
    // One block holds the whole file; the usual size, hundreds of times as much, would be cleared at each run.
    opcoes.Limites.Bloco = bytes.size() + 1;
    opcoes.SemCabecalho = chaves & 1;
    opcoes.Codificacao = static_cast<TCodificacao>(chaves / 2 % 4 % 3);
    if (chaves & 8) opcoes.Uf = "SP";
    if (chaves & 16) opcoes.Colunas.emplace_back("1", tipo);
    // A file of one block is known by its whole first record; so must be the one of small blocks.
    std::string_view corpo = bytes;
    if (corpo.starts_with(CMarca)) corpo.remove_prefix(CMarca.size());
    opcoes.Delimitador = DetectarDelimitador(corpo);
    if (chaves & 32) opcoes.Delimitador = chaves & 64 ? '\t' : '|';
    const char delimitador = opcoes.Delimitador;

    TOpcoesDeConferencia miudas = opcoes;
    miudas.Limites.Bloco = bloco;
    // Starting threads costs as much as dozens of runs without them.
    if (chaves == 0xFF) miudas.Tarefas = 2;
    Exigir(Rodar(bytes, opcoes, std::string::npos) == Rodar(bytes, miudas, pedaco));
    Exigir(Rodar(bytes, opcoes, std::string::npos, tipo) == Rodar(bytes, miudas, pedaco, tipo));
    ConferirLeitura(bytes, delimitador, miudas.Limites, pedaco);
    miudas.Limites.Registro = bloco;
    miudas.Tarefas = 0;
    static_cast<void>(Rodar(bytes, miudas, pedaco));
}
