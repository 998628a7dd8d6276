#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "files/LogApoio.hpp"

#include <map>
#include <random>

// The log beside the obvious one: a list of lines and, for each file, its whole text. Random runs, with the files
// changed from outside between saves.

namespace {

using namespace OryUtils;

class TLogObvio {
public:
    explicit TLogObvio(const TPastaTemporaria& APasta, TAmbienteDeTeste& AAmbiente)
        : FPasta(APasta), FAmbiente(AAmbiente) {}

    void Iniciar() {
        if (FIniciado) return;
        FIniciado = true;
        if (!Existente)
            Linhas.clear();
        else if (Arquivos.contains(Arquivo()))
            Linhas = Arquivos[Arquivo()];
        for (const char16_t* linha : {u"Início do processo", u"Aplicação executora: Importador.exe",
                                      u"Versão: 7.2.0.15", u"IP: 192.168.0.10", u"Nome da máquina: SERVIDOR"})
            Mensagem(linha);
        Adicionar(std::u16string(78, u'*'));  // a start on another day is found out only here
    }
    void Mensagem(const std::u16string& AMensagem) {
        const bool hora = ComHora && !Aparar(AMensagem).empty();
        Linhas.push_back(hora ? u"[" + FormatarDataHora(u"dd/mm/yyyy hh:nn:ss", FAmbiente.Agora) + u"]: " + AMensagem
                              : AMensagem);
        if (Automatico) Salvar();
    }
    void Adicionar(const std::u16string& AMensagem) {
        if (BuscarParteData(FAmbiente.Agora) != Dia) {
            Finalizar();
            Dia = BuscarParteData(FAmbiente.Agora);
            Linhas.clear();
        }
        Iniciar();
        Mensagem(AMensagem);
    }
    void Finalizar() {
        Mensagem(std::u16string(78, u'*'));
        Mensagem(u"Fim do processo");
        Mensagem(u"");
        Salvar();
        FIniciado = false;
    }
    void Salvar() { Arquivos[Arquivo()] = Linhas.empty() ? std::vector<std::u16string>{u""} : Linhas; }
    std::string Arquivo() const {
        return Subpasta + "Log" + (Diario ? ParaUtf8(FormatarDataHora(u"'_'dd'_'mm'_'yyyy", Dia)) : "") + ".log";
    }

    std::vector<std::u16string> Linhas{};
    std::map<std::string, std::vector<std::u16string>> Arquivos{};
    TDateTime Dia = CodificarData(2026, 11, 15);
    std::string Subpasta = "a/";
    bool ComHora = true, Automatico = false, Existente = false, Diario = false;

private:
    const TPastaTemporaria& FPasta;
    TAmbienteDeTeste& FAmbiente;
    bool FIniciado = false;
};

class TCorrida {
public:
    explicit TCorrida(std::uint32_t ASemente) : FSorteio(ASemente), FObvio(FPasta, FAmbiente) {}
    void Correr(int APassos) {
        for (int i = 0; i < APassos && !testing::Test::HasFailure(); ++i) {
            const int passo = Sortear(16);
            Passar(passo);
            Conferir(passo);
        }
    }

private:
    int Sortear(int AQuantos) { return static_cast<int>(FSorteio() % static_cast<unsigned>(AQuantos)); }

    std::u16string SortearTexto() {
        constexpr std::u16string_view CTrechos[] = {u"",  u" ",          u"\t",           u"ação",
                                                    u"x", u"\U0001F600", u"linha longa ", u"[%s]"};
        std::u16string texto;
        for (int i = Sortear(6); i > 0; --i) texto += CTrechos[Sortear(std::size(CTrechos))];
        return texto;
    }

    void Passar(int APasso) {
        const bool sim = Sortear(2) == 1;
        switch (APasso) {
            case 0:
                return FLog.SetSalvarAutomaticamente(FObvio.Automatico = sim);
            case 1:
                return FLog.SetUsarArquivoLogExistente(FObvio.Existente = sim);
            case 2:
                FObvio.ComHora = sim;
                return FLog.SetFormatoMensagem(sim ? tfmComDataHora : tfmSomenteTexto);
            case 3:
                FObvio.Diario = sim;
                return FLog.SetTipoPeriodicidade(sim ? tplDiario : tplUnico);
            case 4:
                return FLog.SetModoGravacao(sim ? mgAcrescentar : mgReescrever);
            case 5:
                FObvio.Subpasta = sim ? "a/" : "b/c/";
                return FLog.SetArquivoLog(FPasta.Nome(FObvio.Subpasta + "Outro.txt"));
            case 6: {
                constexpr double CAvancos[] = {0, 1.0 / 86400, 0.3, 1, -0.05};
                FAmbiente.Agora = FAmbiente.Agora + CAvancos[Sortear(std::size(CAvancos))];
                return;
            }
            case 7: {
                const int quantas = Sortear(4) - 1;
                FLog.AdicionarEspacoEmBranco(quantas);
                if (quantas > 0) FObvio.Linhas.resize(FObvio.Linhas.size() + static_cast<std::size_t>(quantas));
                return;
            }
            case 8: {
                const std::u16string texto = SortearTexto();
                if (!Aparar(texto).empty()) FObvio.Iniciar();
                const int indice = Sortear(static_cast<int>(FObvio.Linhas.size()) + 1);
                FLog.InserirTexto(texto, indice, clBlue);
                if (!Aparar(texto).empty()) FObvio.Linhas.insert(FObvio.Linhas.begin() + indice, texto);
                return;
            }
            case 9:
                FLog.FinalizarLog();
                return FObvio.Finalizar();
            case 10:
                if (Sortear(4) > 0) return;
                FLog.Limpar();
                return FObvio.Linhas.clear();
            case 11:
                FLog.SalvarArquivoLog();
                return FObvio.Salvar();
            case 12:
                return Estragar();
            default: {
                const std::u16string texto = SortearTexto();
                FLog.Adicionar(texto, clBlue);
                return FObvio.Adicionar(texto);
            }
        }
    }

    /// Somebody changes the file behind the log's back.
    void Estragar() {
        const auto achado = FObvio.Arquivos.find(FObvio.Arquivo());
        if (achado == FObvio.Arquivos.end()) return;
        const auto arquivo = FPasta.Caminho() / achado->first;
        const int estrago = Sortear(5);
        if (estrago >= 2 && Interno::BuscarSeparadorDePastas() == u'\\') {
            // Windows lets nobody take the name of an open file.
            FLog.FinalizarLog();
            FObvio.Finalizar();
        }
        std::vector<std::u16string>& linhas = achado->second;
        switch (estrago) {
            case 0:
                linhas.push_back(u"de outro programa");
                return GravarBytes(arquivo, JuntarLinhas({u"de outro programa"}), std::ios::app);
            case 1:
                linhas.resize(linhas.size() / 2);
                return GravarBytes(arquivo, JuntarLinhas(linhas));
            case 2:
                std::filesystem::remove(arquivo);
                FObvio.Arquivos.erase(achado);
                return;
            case 3: {
                const auto outro = FPasta.Caminho() / "novo";
                linhas = {u"um arquivo novo de outro tamanho, que ninguém mais tem: " +
                          DeUtf8(std::to_string(Sortear(99999)))};
                GravarBytes(outro, JuntarLinhas(linhas));
                return std::filesystem::rename(outro, arquivo);
            }
            default:
                std::filesystem::remove_all(FPasta.Caminho() / FObvio.Subpasta);
                std::erase_if(FObvio.Arquivos, [&](const auto& a) { return a.first.starts_with(FObvio.Subpasta); });
        }
    }

    void Conferir(int APasso) {
        std::u16string texto = DeUtf8(JuntarLinhas(FObvio.Linhas));
        if (!texto.empty()) texto.resize(texto.size() - Interno::BuscarQuebraDeLinha().size());
        ASSERT_EQ(FLog.GetTexto(), texto) << "step " << APasso;
        ASSERT_EQ(FLog.GetArquivoLog(), FPasta.Nome(FObvio.Arquivo()));
        std::size_t arquivos = 0;
        for (const auto& entrada : std::filesystem::recursive_directory_iterator(FPasta.Caminho()))
            arquivos += entrada.is_regular_file();
        ASSERT_EQ(arquivos, FObvio.Arquivos.size()) << "after step " << APasso;
        for (const auto& [nome, linhas] : FObvio.Arquivos)
            ASSERT_EQ(LerBytes(FPasta.Caminho() / nome), JuntarLinhas(linhas)) << nome << " after step " << APasso;
    }

    std::mt19937 FSorteio;
    TPastaTemporaria FPasta{};
    TAmbienteDeTeste FAmbiente{};
    TLogDeTeste FLog{FPasta.Nome("a/Log.txt"), FAmbiente, mgReescrever};
    TLogObvio FObvio;
};

TEST(LogModelo, CorridasAoAcaso) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::uint32_t semente = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(semente));
    for (std::uint32_t i = 0; i < 30 && !HasFailure(); ++i) {
        SCOPED_TRACE("run " + std::to_string(i));
        TCorrida(semente + i).Correr(100);
    }
}

/// A day and a half of a service that logs every four seconds and saves every ten minutes.
TEST(LogModelo, UmDiaInteiro) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const TPastaTemporaria pasta;
    TAmbienteDeTeste ambiente;
    TLogDeTeste log(pasta.Nome("Servico"), ambiente, mgAcrescentar);
    log.SetTipoPeriodicidade(tplDiario);
    constexpr int CPasso = 4;
    constexpr int CPorDia = 24 * 3600 / CPasso;
    constexpr int CPorGravacao = 150;
    for (int i = 0; i < CPorDia * 3 / 2; ++i) {
        const int segundos = i * CPasso;
        ambiente.Marcar(2026, 11, 15 + segundos / 86400, segundos / 3600 % 24, segundos / 60 % 60, segundos % 60);
        log.Adicionar(u"Mensagem " + DeUtf8(std::to_string(i)), clBlue);
        if (i % CPorGravacao == 0) log.SalvarArquivoLog();
    }
    log.FinalizarLog();
    std::size_t bytes = 0;
    for (const int dia : {15, 16}) {
        const std::string texto = LerBytes(pasta.Caminho() / ("Servico_" + std::to_string(dia) + "_11_2026.log"));
        bytes += texto.size();
        const auto linhas = std::count(texto.begin(), texto.end(), '\n');
        EXPECT_EQ(linhas, (dia == 15 ? CPorDia : CPorDia / 2) + 9) << dia;
        EXPECT_NE(texto.find("Mensagem " + std::to_string(dia == 15 ? CPorDia - 1 : CPorDia)), std::string::npos);
    }
    EXPECT_EQ(ambiente.Bytes, bytes) << "nothing was written twice";
    EXPECT_EQ(ambiente.Tentativas, CPorDia * 3 / 2 / CPorGravacao + 2) << "and the end of each day";
}

}  // namespace
