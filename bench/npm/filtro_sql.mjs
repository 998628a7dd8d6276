// Nanoseconds of the processor, as the C++ side counts them, per WHERE text of knex for 5, 50 and 500 conditions: the
// same ones as BenchFiltroSql.cpp.
//   node filtro_sql.mjs
import knex from "knex";

const db = knex({ client: "pg" });
const nomes = ["Ana", "João D'Ávila", "Maria das Dores", "Zé"];

function preencher(consulta, i) {
  switch (i % 5) {
    case 0:
      return consulta.whereRaw("UPPER(f.nome) = UPPER(?)", [nomes[i % 4]]);
    case 1:
      return consulta.where("f.codigo", ">=", i);
    case 2:
      return consulta.where("f.nome", "like", `%${nomes[i % 4]}%`);
    case 3:
      return consulta.whereIn("f.filial", [1, 2, 3, 5, i]);
    default:
      return consulta.whereBetween("f.situacao", ["A", "D'"]);
  }
}

function montar(quantas) {
  const consulta = db("f");
  for (let i = 0; i < quantas; ++i) preencher(consulta, i);
  return consulta;
}

// toString writes the values into the text, as the library does; toSQL leaves them apart.
const medidas = [5, 50, 500].flatMap((quantas) => [
  { nome: `Filtro${quantas}_knex-toString`, quantas, rodar: () => montar(quantas).toString().length, tempos: [] },
  { nome: `Filtro${quantas}_knex-toSQL`, quantas, rodar: () => montar(quantas).toSQL().sql.length, tempos: [] },
]);

let escritos = 0;
for (let i = 0; i < 15; ++i)
  for (const { quantas, rodar, tempos } of medidas) {
    const vezes = Math.ceil(5000 / quantas);
    const inicio = process.cpuUsage();
    for (let vez = 0; vez < vezes; ++vez) escritos += rodar();
    const { user, system } = process.cpuUsage(inicio);
    const tempo = ((user + system) * 1000) / vezes;
    if (i >= 4) tempos.push(tempo); // the first rounds warm the compiler up
  }
for (const { nome, tempos } of medidas)
  console.log(nome, tempos.sort((a, b) => a - b)[tempos.length >> 1].toFixed(1));
if (escritos === 0) throw new Error("nothing was written");
