// Prints for each measure { nome, vezes, rodar } and each round its name and the nanoseconds of the processor for one of
// the "vezes" that rodar() does; the rounds of the measures run in turns. relatorio.py makes medians of them.
export function medir(medidas, rodadas = 8) {
  let feito = 0;
  for (let i = 0; i < rodadas; ++i)
    for (const { nome, vezes, rodar } of medidas) {
      const inicio = process.cpuUsage(); // a busy machine does not show
      feito += rodar();
      const { user, system } = process.cpuUsage(inicio);
      if (i >= 3) console.log(nome, (((user + system) * 1000) / vezes).toFixed(1)); // the first ones warm the compiler up
    }
  if (!(feito > 0)) throw new Error("nothing was done");
}
