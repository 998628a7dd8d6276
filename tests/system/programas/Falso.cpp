// Stands for a command of the system under whatever name it was copied to. Writes how it was called, a line each time
// and "|" between the arguments, to "chamadas" in the folder ORY_PROGRAMAS_FALSOS, and prints the file "<name>.<how
// often called>" of that folder, or else "<name>".
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

std::ifstream AbrirResposta(const std::filesystem::path& APasta, const std::string& ANome, int AVez) {
    std::ifstream resposta(APasta / (ANome + "." + std::to_string(AVez)));
    return resposta ? std::move(resposta) : std::ifstream(APasta / ANome);
}

}  // namespace

int main(int AQuantidade, char** AArgumentos) {
    const char* variavel = std::getenv("ORY_PROGRAMAS_FALSOS");
    if (!variavel || AQuantidade < 1) return 9;
    const std::filesystem::path pasta = variavel;
    const std::string nome = std::filesystem::path(AArgumentos[0]).stem().string();
    int vez = 1;
    std::ifstream anteriores(pasta / "chamadas");
    for (std::string linha; std::getline(anteriores, linha);) vez += linha.substr(0, linha.find('|')) == nome;
    anteriores.close();
    std::ofstream chamadas(pasta / "chamadas", std::ios::app);
    chamadas << nome;
    for (int i = 1; i < AQuantidade; ++i) chamadas << '|' << AArgumentos[i];
    chamadas << '\n';
    std::ifstream resposta = AbrirResposta(pasta, nome, vez);
    if (resposta && resposta.peek() != std::ifstream::traits_type::eof()) std::cout << resposta.rdbuf();
}
