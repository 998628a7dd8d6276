#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/files/interno/LinhasDoLog.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "comum/Acaso.hpp"
#include "files/LogApoio.hpp"

#include <map>
#include <random>

// The log beside the obvious one: a list of lines and, for each file, its whole text. Random runs, with the files
// changed from outside between saves.

namespace {

using namespace OryUtils;

struct TLogObvio {
    TAmbienteDeTeste& Ambiente;
    TLinhas Linhas{};
    std::map<std::string, TLinhas> Arquivos{};
    TDateTime Dia = CodificarData(2026, 11, 15);
    std::string Subpasta = "a/";
    bool ComHora = true, Automatico = false, Existente = false, Diario = false, Iniciado = false;

    void Iniciar() {
        if (Iniciado) return;
        Iniciado = true;
        if (!Existente)
            Linhas.clear();
        else if (Arquivos.contains(Arquivo()))
            Linhas = Arquivos[Arquivo()];
        for (std::size_t i = 0; i < 5; ++i) Mensagem(CCabecalho[i]);
        Adicionar(CCabecalho[5]);  // a start on another day is found out only here
    }
    void Mensagem(const std::u16string& AMensagem) {
        const bool hora = ComHora && !Aparar(AMensagem).empty();
        Linhas.push_back((hora ? FormatarDataHora(u"'['dd/mm/yyyy hh:nn:ss']: '", Ambiente.Agora) : u"") + AMensagem);
        if (Automatico) Salvar();
    }
    void Adicionar(const std::u16string& AMensagem) {
        if (BuscarParteData(Ambiente.Agora) != Dia) {
            Finalizar();
            Dia = BuscarParteData(Ambiente.Agora);
            Linhas.clear();
        }
        Iniciar();
        Mensagem(AMensagem);
    }
    void Finalizar() {
        for (const std::u16string& linha : {CCabecalho[5], std::u16string(u"Fim do processo"), std::u16string()})
            Mensagem(linha);
        Salvar();
        Iniciado = false;
    }
    void Salvar() { Arquivos[Arquivo()] = Linhas.empty() ? TLinhas{u""} : Linhas; }
    std::string Arquivo() const {
        return Subpasta + "Log" + (Diario ? ParaUtf8(FormatarDataHora(u"'_'dd'_'mm'_'yyyy", Dia)) : "") + ".log";
    }
};

class TCorrida {
public:
    explicit TCorrida(std::uint32_t ASemente) : FSorteio(ASemente) {}
    void Correr(int APassos) {
        for (int i = 0; i < APassos && !testing::Test::HasFailure(); ++i) {
            // Every third step or so is one more line.
            const int passo = Sortear(static_cast<int>(FPassos.size()) * 4 / 3);
            passo < static_cast<int>(FPassos.size()) ? FPassos[static_cast<std::size_t>(passo)](Sortear(2) == 1)
                                                     : Adicionar();
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
    void Adicionar() {
        const std::u16string texto = SortearTexto();
        FLog.Adicionar(texto, clBlue);
        FObvio.Adicionar(texto);
    }
    /// Also where there is no line: then nothing changes.
    void Inserir() {
        const std::u16string texto = SortearTexto();
        const bool vazio = Aparar(texto).empty();
        if (!vazio) FObvio.Iniciar();
        const int linhas = static_cast<int>(FObvio.Linhas.size());
        const int indice = Sortear(linhas + 3) - 1;
        if (!vazio && (indice < 0 || indice > linhas)) {
            EXPECT_THROW(FLog.InserirTexto(texto, indice, clBlue), EListError);
            return;
        }
        FLog.InserirTexto(texto, indice, clBlue);
        if (!vazio) FObvio.Linhas.insert(FObvio.Linhas.begin() + indice, texto);
    }
    void AdicionarEspaco() {
        const int quantas = Sortear(4) - 1;
        FLog.AdicionarEspacoEmBranco(quantas);
        if (quantas > 0) FObvio.Linhas.resize(FObvio.Linhas.size() + static_cast<std::size_t>(quantas));
    }
    void Avancar() {
        constexpr double CAvancos[] = {0, 1.0 / 86400, 0.3, 1, -0.05};
        FAmbiente.Agora = FAmbiente.Agora + CAvancos[Sortear(std::size(CAvancos))];
    }
    void Nomear(bool APrimeira) {
        FObvio.Subpasta = APrimeira ? "a/" : "b/c/";
        FLog.SetArquivoLog(FPasta.Nome(FObvio.Subpasta + "Outro.txt"));
    }
    void Finalizar() {
        FLog.FinalizarLog();
        FObvio.Finalizar();
    }

    /// Somebody changes the file behind the log's back.
    void Estragar() {
        const auto achado = FObvio.Arquivos.find(FObvio.Arquivo());
        if (achado == FObvio.Arquivos.end()) return;
        const auto arquivo = FPasta.Caminho() / achado->first;
        const int estrago = Sortear(5);
        if (estrago >= 2 && Interno::BuscarSeparadorDePastas() == u'\\') {
            // Windows lets nobody take the name of an open file.
            Finalizar();
        }
        TLinhas& linhas = achado->second;
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
        ASSERT_EQ(FLog.GetTexto(), JuntarTexto(FObvio.Linhas)) << "step " << APasso;
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
    TLogObvio FObvio{FAmbiente};
    const std::vector<std::function<void(bool)>> FPassos{
        [this](bool ASim) { FLog.SetSalvarAutomaticamente(FObvio.Automatico = ASim); },
        [this](bool ASim) { FLog.SetUsarArquivoLogExistente(FObvio.Existente = ASim); },
        [this](bool ASim) { FLog.SetFormatoMensagem((FObvio.ComHora = ASim) ? tfmComDataHora : tfmSomenteTexto); },
        [this](bool ASim) { FLog.SetTipoPeriodicidade((FObvio.Diario = ASim) ? tplDiario : tplUnico); },
        [this](bool ASim) { FLog.SetModoGravacao(ASim ? mgAcrescentar : mgReescrever); },
        [this](bool ASim) { Nomear(ASim); },
        [this](bool) { Avancar(); },
        [this](bool) { AdicionarEspaco(); },
        [this](bool) { Inserir(); },
        [this](bool) { Finalizar(); },
        [this](bool) { FLog.SalvarArquivoLog(), FObvio.Salvar(); },
        [this](bool ASim) {
            if (ASim) FLog.Limpar(), FObvio.Linhas.clear();
        },
        [this](bool) { Estragar(); },
    };
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
/// Lines that their bytes do not tell, among others: the list of texts beside it is what they were.
TEST(LogModelo, LinhasQueOsBytesNaoContam) {
    constexpr std::u16string_view CLinhas[] = {u"",       u"x",    u"ação", u"\u4E2D",
                                               u"\xD800", u"a\nb", u"\r\n", u"\r\n\u4E2D\n"};
    Testes::TAcaso sorteio;
    TLinhasDoLog linhas;
    TLinhas obvias;
    for (int passo = 0; passo < 2000; ++passo) {
        const std::u16string_view linha = CLinhas[sorteio() % std::size(CLinhas)];
        const std::size_t indice = sorteio() % 3 == 0 ? sorteio() % (obvias.size() + 1) : obvias.size();
        linhas.Inserir(indice, linha);
        obvias.emplace(obvias.begin() + static_cast<std::ptrdiff_t>(indice), linha);
        if (sorteio() % 8 == 0) linhas.SetCodificacao(static_cast<TCodificacaoLog>(sorteio() % 3));
        if (sorteio() % 8 == 0)
            linhas.ColocarAntes({ParaUtf8(Interno::BuscarQuebraDeLinha()), 1}), obvias.insert(obvias.begin(), u"");
        if (sorteio() % 64 == 0) linhas.Limpar(), obvias.clear();
        std::u16string texto;
        for (const std::u16string& obvia : obvias) (texto += obvia) += Interno::BuscarQuebraDeLinha();
        if (!texto.empty()) texto.resize(texto.size() - Interno::BuscarQuebraDeLinha().size());
        ASSERT_EQ(linhas.GetTexto(), texto) << "step " << passo;
        ASSERT_EQ(linhas.GetQuantidade(), obvias.size());
    }
}

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
