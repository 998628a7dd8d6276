#include "oryutils/platform/Processos.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

#include <random>

namespace OryUtils {
namespace {

using Testes::Comando;
using Testes::TPastaTemporaria;

/// A copy of the program under a name of its own, so that only what this test started bears it.
class Processos : public testing::Test {
protected:
    Processos() : FPrograma(FPasta / ("Ory" + std::to_string(std::random_device{}()) + ".exe")) {
        std::filesystem::copy_file(Testes::ProgramaAuxiliar(), FPrograma);
    }
    /// Nothing of the program stays behind; on Windows its file could not be deleted.
    ~Processos() override {
        TOryUtilsSistema::FinalizouProcesso(Nome());
        EsperarFim();
    }
    std::uint32_t Iniciar() {
        const Testes::TDorminhoco dorminhoco;
        FIniciados.push_back(*Interno::CriarProcesso(Comando(dorminhoco.Argumentos(), FPrograma), false));
        dorminhoco.Esperar();
        return FIniciados.back().ID;
    }
    void EsperarFim() {
        for (const Interno::TProcessoIniciado& processo : FIniciados)
            Interno::EsperarProcesso(processo, Interno::CEsperaSemLimite, false);
    }
    std::u16string Nome() const { return FPrograma.filename().u16string(); }

    TPastaTemporaria FPasta;
    std::filesystem::path FPrograma;
    std::vector<Interno::TProcessoIniciado> FIniciados;
};

const TProcessoItem* Achar(const TProcessoItems& AProcessos, std::uint32_t AID) {
    for (int i = 0; i < AProcessos.GetCount(); ++i)
        if (AProcessos[i].IDProcesso == AID) return &AProcessos[i];
    return nullptr;
}

TEST_F(Processos, AListaAchaOFilhoComCaminhoEMemoria) {
    const std::uint32_t id = Iniciar();
    const auto processos = GetListaDeProcessosWindows(u"");
    const TProcessoItem* filho = Achar(*processos, id);
    ASSERT_NE(filho, nullptr);
    EXPECT_EQ(filho->Processo, Nome());
    EXPECT_TRUE(std::filesystem::equivalent(filho->Caminho, FPrograma));
    EXPECT_EQ(filho->Caminho, TOryUtilsSistema::BuscarCaminhoArquivoPeloIDProcesso(id));
    EXPECT_GT(filho->MemoriaUsada, 0U);
    EXPECT_GT(TOryUtilsSistema::BuscarMemoriaUsadaEnderecoProcesso(filho->EnderecoMemoria), 0U);
    EXPECT_GT(
        TOryUtilsSistema::BuscarMemoriaUsadaEnderecoProcesso(GetEnderecoMemoriaProcesso(u" " + MinusculaDe(Nome()))),
        0U);
    std::u16string usuario;
    std::u16string dominio;
    GetUsuarioEDominioDoProcesso(id, usuario, dominio);
    EXPECT_FALSE(usuario.empty());
    EXPECT_FALSE(dominio.empty());
    EXPECT_EQ(filho->Usuario, usuario);

    // The filter: trimmed, ignoring case, the name alone.
    EXPECT_NE(Achar(*GetListaDeProcessosWindows(u" " + MaiusculaDe(usuario) + u" "), id), nullptr);
    EXPECT_EQ(GetListaDeProcessosWindows(usuario + u"x")->GetCount(), 0);
    EXPECT_TRUE(ProcessIsRunning(u" " + MaiusculaDe(Nome()), usuario));
    EXPECT_FALSE(ProcessIsRunning(Nome().substr(1), u""));
    EXPECT_FALSE(ProcessIsRunning(Nome(), usuario + u"x"));
    EXPECT_TRUE(ProcessIsRunning(id, usuario));
    EXPECT_FALSE(ProcessIsRunning(0U, u""));

    // A copy of an item has a handle of its own.
    TProcessoItems copias;
    copias.Add();
    copias.SetItems(0, *filho);
    EXPECT_NE(copias[0].EnderecoMemoria.Get(), filho->EnderecoMemoria.Get());
    EXPECT_GT(TOryUtilsSistema::BuscarMemoriaUsadaEnderecoProcesso(copias[0].EnderecoMemoria), 0U);
    EXPECT_THROW(copias.GetItems(1), EListError);

    EXPECT_TRUE(TOryUtilsSistema::FinalizouProcessoPeloPID(id).Status);
    EsperarFim();
    EXPECT_FALSE(TOryUtilsSistema::ProcessoEstahRodando(id, u""));
    EXPECT_EQ(TOryUtilsSistema::BuscarMemoriaUsadaEnderecoProcesso(GetEnderecoMemoriaProcesso(Nome())), 0U);
}

TEST_F(Processos, AsDuasCopiasSaoFinalizadasPeloNome) {
    const std::uint32_t primeira = Iniciar();
    const std::uint32_t segunda = Iniciar();
    EXPECT_TRUE(KillProcess(MaiusculaDe(Nome())));
    EsperarFim();
    EXPECT_FALSE(ProcessIsRunning(primeira, u""));
    EXPECT_FALSE(ProcessIsRunning(segunda, u""));
    EXPECT_FALSE(KillProcess(Nome())) << "nothing of that name is left";
}

TEST(ProcessosPeloNumero, OQueNaoExiste) {
    for (const std::uint32_t id : {0xFFFFFFFCU, 0U}) {
        const TResultStatus resultado = TOryUtilsSistema::FinalizouProcessoPeloPID(id);
        EXPECT_FALSE(resultado.Status);
        EXPECT_EQ(resultado.Mensagem, u"Não foi possível finalizar o processo pois o PID [ " +
                                          DeUtf8(std::to_string(id)) +
                                          u" ] não foi encontrado ou não está mais ativo.");
    }
    std::u16string usuario = u"x";
    std::u16string dominio = u"x";
    TOryUtilsSistema::BuscarUsuarioEDominioDoProcesso(0xFFFFFFFC, usuario, dominio);
    EXPECT_EQ(usuario + dominio, u"");
    EXPECT_EQ(TOryUtilsSistema::BuscarCaminhoArquivoPeloIDProcesso(0xFFFFFFFC), u"");
    EXPECT_FALSE(GetEnderecoMemoriaProcesso(u"este-programa-nao-existe"));
}

TEST(ProcessosPeloNumero, OProprio) {
    EXPECT_FALSE(TOryUtilsSistema::EhSistemaOperacional64bits()) << "this program is of 64 bits";
    TOryUtilsSistema::LiberarMemoriaResidualProcesso();
}

}  // namespace
}  // namespace OryUtils
