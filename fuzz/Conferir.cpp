// Any bytes as a file to check, with any options: blocks of any size, read in any pieces, give one answer, and records
// are what a slow reader says they are.
#include "oryutils/runtime/Formatos.hpp"

#include "../tests/ory/CsvDevagar.hpp"
#include "Comum.hpp"
#include "conferir/Conferencia.hpp"
#include "conferir/Relatorio.hpp"

using namespace Ory;

namespace {

constexpr std::string_view CMarca = "\xEF\xBB\xBF";

/// The report, the answer in JSON and the rows written for ATipo none; the verdicts on a column of ATipo otherwise.
std::string Rodar(std::string_view ABytes, const TOpcoesDeConferencia& AOpcoes, std::size_t APedaco,
                  const TTipoColuna* ATipo = nullptr) {
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
    const std::string corpo = ABytes.substr(ABytes.starts_with(CMarca) ? CMarca.size() : 0);
    if (corpo.starts_with("\xFF\xFE") || corpo.starts_with("\xFE\xFF")) return;  // UTF-16 is refused
    bool abertas = false;
    const TRegistros registros = LerDevagar(corpo, ADelimitador, abertas);
    TEntradaDeTexto entrada(ABytes, APedaco);
    TLeitorDeRegistros leitor(entrada, ADelimitador, 4096, ALimites);
    TRegistros lidos;
    try {
        while (leitor.Proximo()) lidos.emplace_back(leitor.GetCampos().begin(), leitor.GetCampos().end());
        Fuzz::Exigir(!abertas && lidos == registros);
    } catch (const EFalha&) {
        Fuzz::Exigir(abertas);
        return;
    }

    // What is written reads back.
    std::string escrito;
    for (const auto& registro : registros) {
        for (std::size_t i = 0; i < registro.size(); ++i) {
            if (i) escrito += ADelimitador;
            EscreverCampo(escrito, registro[i], ADelimitador);
        }
        escrito += '\n';
    }
    Fuzz::Exigir(LerDevagar(escrito, ADelimitador, abertas) == registros);
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    static const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    const std::uint8_t chaves = AEntrada.Byte();
    const TTipoColuna& tipo = BuscarTipos()[AEntrada.Byte() % BuscarTipos().size()];
    const std::size_t bloco = 4 + AEntrada.Byte() % 64;
    const std::size_t pedaco = 1 + AEntrada.Byte() % 16;
    const std::string bytes = AEntrada.Bytes();

    TOpcoesDeConferencia opcoes;
    // One block holds the whole file; the usual size, hundreds of times as much, would be cleared at each run.
    opcoes.Limites.Bloco = bytes.size() + 1;
    opcoes.SemCabecalho = chaves & 1;
    opcoes.Codificacao = static_cast<TCodificacao>(chaves / 2 % 4 % 3);
    if (chaves & 8) opcoes.Uf = "SP";
    if (chaves & 16) opcoes.Colunas.emplace_back("1", TPapelDaColuna{.Tipo = &tipo});
    // A file of one block is known by its whole first record; so must be the one of small blocks.
    std::string_view corpo = bytes;
    if (corpo.starts_with(CMarca)) corpo.remove_prefix(CMarca.size());
    opcoes.Delimitador = DetectarDelimitador(corpo);
    if (chaves & 32) opcoes.Delimitador = chaves & 64 ? '\t' : '|';
    const char delimitador = opcoes.Delimitador;

    TOpcoesDeConferencia miudas = opcoes;
    miudas.Limites.Bloco = bloco;
    Exigir(Rodar(bytes, opcoes, std::string::npos) == Rodar(bytes, miudas, pedaco));
    Exigir(Rodar(bytes, opcoes, std::string::npos, &tipo) == Rodar(bytes, miudas, pedaco, &tipo));
    ConferirLeitura(bytes, delimitador, miudas.Limites, pedaco);
    miudas.Limites.Registro = bloco;
    static_cast<void>(Rodar(bytes, miudas, pedaco));
}
