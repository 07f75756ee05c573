// Has marks judged: judge.mjs PROGRAM [--share NUMBER] [--only NAME] [--sample FILE]. PROGRAM is
// mark_jobs; NAME is that of a suite or a symbology. FILE gets a sample of what the generator drew,
// for JudgedMarksTest.cpp. Exit code 1: a difference that differences.mjs does not explain.
import { writeFileSync } from 'node:fs';
import { availableParallelism } from 'node:os';
import { parseArgs } from 'node:util';
import { isMainThread, parentPort, Worker, workerData } from 'node:worker_threads';
import { drawnBy, judge as judgeByBwip } from './bwip.mjs';
import { DIFFERENCES } from './differences.mjs';
import { linearCases } from './linear.mjs';
import { mark, pictureOf } from './marks.mjs';
import { judgeByZbar, judgeByZxing, prepare } from './readers.mjs';
import { ROW } from './symbologies.mjs';

const BATCH = 500;
const EQUAL_ROWS = 10;  // of a picture: all rows of a bar are equal
const SAMPLED_OF_A_KIND = 15;
const SAMPLED_LENGTH = 24;
const SHOWN_OF_A_KIND = 3;

function explain(judge, one, difference) {
  const text = one.text.toString('latin1');
  return DIFFERENCES.findIndex((row) => row.judge === judge && row.when({ ...one, text, ...difference }));
}

class Tally {
  constructor() {
    this.counts = {};  // by name of the symbology, then by judge: { agreed, explained }
    this.met = DIFFERENCES.map(() => 0);
    this.differences = [];
  }

  of(name, judge) {
    const row = (this.counts[name] ??= {});
    return (row[judge] ??= { agreed: 0, explained: 0 });
  }

  add(judge, one, difference) {
    if (difference === undefined) return;
    const counts = this.of(ROW[one.job.symbology].name, judge);
    if (difference === null) {
      ++counts.agreed;
      return;
    }
    const reason = explain(judge, one, difference);
    if (reason >= 0) {
      ++this.met[reason];
      ++counts.explained;
    } else {
      const { suite, job, text, answer } = one;
      this.differences.push({ judge, suite, job, text: text.toString('latin1'), message: answer.message, ...difference });
    }
  }

  join(other) {
    for (const [name, row] of Object.entries(other.counts)) {
      for (const [judge, { agreed, explained }] of Object.entries(row)) {
        this.of(name, judge).agreed += agreed;
        this.of(name, judge).explained += explained;
      }
    }
    other.met.forEach((count, index) => (this.met[index] += count));
    this.differences.push(...other.differences);
  }
}

async function judgeCase(one, tally) {
  tally.add('bwip-js', one, judgeByBwip(one));
  if (one.answer.picture === undefined) return;
  const row = ROW[one.job.symbology];
  const picture = pictureOf(one.answer.picture, EQUAL_ROWS);
  if (row.format) tally.add('zxing', one, await judgeByZxing(one, picture));
  if (row.zbar) tally.add('zbar', one, await judgeByZbar(one, picture));
}

async function judgeAll(cases, program) {
  await prepare();
  const tally = new Tally();
  for (let at = 0; at < cases.length; at += BATCH) {
    const batch = cases.slice(at, at + BATCH);
    const answers = mark(program, batch);
    for (let i = 0; i < batch.length; ++i) await judgeCase({ ...batch[i], answer: answers[i] }, tally);
  }
  return tally;
}

const casesOf = ({ share, only }) =>
  linearCases(share).filter((one) => only === undefined || one.suite === only || ROW[one.job.symbology].name === only);

function inWorkers(options) {
  const workers = availableParallelism();
  const results = Array.from({ length: workers }, (_, index) => new Promise((resolve, reject) => {
    const worker = new Worker(new URL(import.meta.url), { workerData: { ...options, index, workers } });
    worker.once('message', resolve).once('error', reject);
  }));
  return Promise.all(results);
}

function print(tally) {
  const judges = ['bwip-js', 'zxing', 'zbar'];
  console.log(`| symbology | ${judges.map((judge) => `${judge} | explained`).join(' | ')} |`);
  console.log(`|---|${judges.map(() => '---:|---:|').join('')}`);
  const sums = judges.map(() => ({ agreed: 0, explained: 0 }));
  const cellsOf = (counts) => counts.map((one) => (one ? `${one.agreed} | ${one.explained}` : '- | -')).join(' | ');
  for (const [name, row] of Object.entries(tally.counts)) {
    const counts = judges.map((judge) => row[judge]);
    counts.forEach((one, index) => {
      sums[index].agreed += one?.agreed ?? 0;
      sums[index].explained += one?.explained ?? 0;
    });
    console.log(`| ${name} | ${cellsOf(counts)} |`);
  }
  console.log(`| together | ${cellsOf(sums)} |`);
  DIFFERENCES.forEach((row, index) => console.log(`${tally.met[index]} x ${row.judge}, ${row.what}: ${row.why}`));
}

// The first few of each judge and symbology.
function printDifferences(differences) {
  const shown = {};
  for (const { judge, suite, job, text, message, ours, theirs } of differences) {
    const kind = `${judge}, ${ROW[job.symbology].name}`;
    shown[kind] = (shown[kind] ?? 0) + 1;
    if (shown[kind] > SHOWN_OF_A_KIND) continue;
    console.log(`DIFFERS ${kind}, ${suite}: ${JSON.stringify(text)} ${JSON.stringify(job)}`);
    console.log(`  ours   ${ours} ${message}\n  theirs ${theirs}`);
  }
  for (const [kind, count] of Object.entries(shown)) console.log(`${count} of ${kind}`);
}

// Some short texts of each symbology and suite, as the generator drew or refused them.
function writeSample(file, cases, program) {
  const kinds = {};
  for (const one of cases.filter(({ text }) => text.length <= SAMPLED_LENGTH)) {
    (kinds[`${one.suite} ${one.job.symbology}`] ??= []).push(one);
  }
  const sampled = Object.values(kinds).flatMap((kind) => {
    const step = kind.length / SAMPLED_OF_A_KIND;
    return kind.filter((_, index) => step <= 1 || Math.floor(index / step) !== Math.floor((index - 1) / step));
  });
  const answers = mark(program, sampled);
  const lines = sampled.flatMap(({ job, text }, index) => {
    const drawn = drawnBy({ job, text, answer: answers[index] });
    return drawn ? [[job.symbology, job.flags ?? 0, text.toString('hex') || '-', drawn].join(' ')] : [];
  });
  const head = '# Drawn by bwip-js 4.11.4 (scripts/judge --sample): symbology, flags, text, elements or refusal';
  writeFileSync(file, [head, ...new Set(lines)].join('\n') + '\n');
  console.log(`${file}: ${lines.length} marks`);
}

async function main() {
  const { values, positionals } = parseArgs({
    allowPositionals: true, options: { share: { type: 'string', default: '1' }, only: { type: 'string' }, sample: { type: 'string' } },
  });
  const options = { program: positionals[0], share: Number(values.share), only: values.only };
  if (values.sample) {
    writeSample(values.sample, casesOf(options), options.program);
    return;
  }
  const began = Date.now();
  const tally = new Tally();
  for (const part of await inWorkers(options)) tally.join(part);
  print(tally);
  const unmet = values.only === undefined ? DIFFERENCES.filter((_, index) => tally.met[index] === 0) : [];
  for (const row of unmet) console.log(`nothing met: ${row.judge}, ${row.what}`);
  printDifferences(tally.differences);
  const seconds = Math.round((Date.now() - began) / 1000);
  const marks = casesOf(options).length;
  const failures = tally.differences.length + unmet.length;
  console.log(`judge: ${failures === 0 ? 'agreed' : 'FAILED'}, ${marks} texts, ${tally.differences.length} differences not explained, ${unmet.length} reasons not met, ${seconds} s`);
  process.exitCode = failures === 0 ? 0 : 1;
}

if (isMainThread) {
  await main();
} else {
  const { index, workers } = workerData;
  const cases = casesOf(workerData).filter((_, at) => at % workers === index);
  const { counts, met, differences } = await judgeAll(cases, workerData.program);
  parentPort.postMessage({ counts, met, differences });
}
