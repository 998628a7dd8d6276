// The program that the tests of commands and processes start. It does what its first argument says:
//   argumentos ...      prints each of the others on a line
//   arquivo NOME        prints the bytes of a file
//   ler                 prints what comes from standard input
//   erro TEXTO          prints to standard error
//   herdar              leaves behind a copy that prints when this one is gone
//   morrer              prints a word and is killed
//   criar NOME          makes a file
//   parar A B           prints "a", makes the file A, waits until the file B exists, prints "b"
//   viver N             lives for so many milliseconds
//   dormir NOME         makes a file when it is up and lives for a minute
// While the variable ORY_PROGRAMAS_FALSOS names a folder it stands for a command of the system, under whatever name it
// was copied to: it writes how it was called, a line each time and "|" between the arguments, to "chamadas" in that
// folder, and prints the file "<name>.<how often called>".
#include "Sistema.hpp"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

void Escrever(const std::string& ATexto) {
    std::fwrite(ATexto.data(), 1, ATexto.size(), stdout);
    std::fflush(stdout);
}

bool Existe(const std::string& ANome) { return std::ifstream(ANome).good(); }

void EscreverArquivo(const std::filesystem::path& ANome) {
    std::ifstream arquivo(ANome, std::ios::binary);
    Escrever({std::istreambuf_iterator<char>(arquivo), {}});
}

void FazerDeConta(const std::filesystem::path& APasta, const char* APrograma,
                  const std::vector<std::string>& AArgumentos) {
    const std::string nome = std::filesystem::path(APrograma).stem().string();
    int vez = 1;
    std::ifstream anteriores(APasta / "chamadas");
    for (std::string linha; std::getline(anteriores, linha);) vez += linha.substr(0, linha.find('|')) == nome;
    anteriores.close();
    std::ofstream chamadas(APasta / "chamadas", std::ios::app);
    chamadas << nome;
    for (const std::string& argumento : AArgumentos) chamadas << '|' << argumento;
    chamadas << '\n';
    EscreverArquivo(APasta / (nome + "." + std::to_string(vez)));
}

}  // namespace

int main(int AQuantidade, char** AArgumentos) {
    const std::vector<std::string> argumentos(AArgumentos + 1, AArgumentos + AQuantidade);
    Sistema::PrepararSaida();
    if (const char* pasta = std::getenv("ORY_PROGRAMAS_FALSOS")) {
        FazerDeConta(pasta, AArgumentos[0], argumentos);
        return 0;
    }
    if (argumentos.empty()) return 2;
    const std::string& acao = argumentos[0];
    if (acao == "argumentos") {
        for (std::size_t i = 1; i < argumentos.size(); ++i) Escrever('[' + argumentos[i] + "]\n");
    } else if (acao == "arquivo") {
        EscreverArquivo(argumentos[1]);
    } else if (acao == "ler") {
        for (int byte = std::getchar(); byte != EOF; byte = std::getchar()) std::putchar(byte);
    } else if (acao == "erro") {
        std::fputs(argumentos[1].c_str(), stderr);
    } else if (acao == "herdar") {
        Escrever("pai\n");
        Sistema::GerarHerdeiro("herdado");
    } else if (acao == "herdado") {
        Sistema::EsperarPai();
        Escrever("filho\n");
    } else if (acao == "morrer") {
        Escrever("antes");
        Sistema::Morrer();
    } else if (acao == "criar") {
        std::ofstream(argumentos[1]) << "feito";
    } else if (acao == "parar") {
        Escrever("a\n");
        std::ofstream(argumentos[1]) << "feito";
        while (!Existe(argumentos[2])) Sistema::EsperarUmPouco();
        Escrever("b\n");
    } else if (acao == "viver") {
        const auto fim = std::chrono::steady_clock::now() + std::chrono::milliseconds(std::stoi(argumentos[1]));
        while (std::chrono::steady_clock::now() < fim) Sistema::EsperarUmPouco();
    } else if (acao == "dormir") {
        std::ofstream(argumentos[1]) << "feito";
        for (const std::time_t fim = std::time(nullptr) + 60; std::time(nullptr) < fim;) Sistema::EsperarUmPouco();
    }
    return 0;
}
