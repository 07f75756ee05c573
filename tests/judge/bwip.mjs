// The generator bwip-js: its modules, or its refusal.
import bwip from 'bwip-js';
import { isCode128, ROW } from './symbologies.mjs';

// The judge lets the gap between characters stand behind the last one too.
const withoutLastGap = (widths) => (widths.length % 2 === 0 ? widths.slice(0, -1) : widths);

// { elements: widths, darks first } or { refusal }; isDefect: one that it did not mean.
export function raw(bcid, text, options) {
  try {
    const [symbol] = bwip.raw(bcid, text, options);
    return symbol.sbs ? { elements: withoutLastGap(Array.from(symbol.sbs)) } : { ...symbol };
  } catch (error) {
    const message = String(error.message ?? error);
    return { refusal: message, isDefect: !message.startsWith('bwipp.') };
  }
}

// Letters of the elements of two widths, n and w; the widths of other elements in modules, 10 as a.
export function lettersOfElements(elements, twoWidths) {
  return elements.map((width) => (twoWidths ? (width > 1 ? 'w' : 'n') : width.toString(36))).join('');
}

// Bars and spaces take turns; a module that is of the other colour is none.
const letterOfTwoWidths = (module, index) => (module % 2 === index % 2 ? '?' : module >= 2 ? 'w' : 'n');

// The same of the modules of a mark, as mark_jobs writes them.
export function lettersOfModules(modules, twoWidths) {
  if (twoWidths) return [...modules].map((module, index) => letterOfTwoWidths(Number(module), index)).join('');
  return modules.replace(/0+|1+/g, (run) => run.length.toString(36));
}

export const widthOf = (letters) => [...letters].reduce((sum, width) => sum + parseInt(width, 36), 0);

// Of Code 128, whose choice of sets is free: no longer than the judge's shortest symbol (from a set
// that was asked for a symbol may be longer), and the judge draws the values as they are drawn.
export function judgeCode128({ job, answer }, theirs) {
  const ours = lettersOfModules(answer.modules, false);
  if (theirs.refusal) return { ours, theirs: theirs.refusal };
  const values = [...answer.values].slice(0, -1).map((value) => `^${String(value).padStart(3, '0')}`);
  const drawn = raw('code128', values.join(''), { raw: true });
  const modules = drawn.refusal ?? lettersOfElements(drawn.elements, false);
  if (modules !== ours) return { ours, theirs: modules };
  const difference = widthOf(ours) - widthOf(lettersOfElements(theirs.elements, false));
  if (difference === 0) return null;
  return { ours: `${difference} modules wider`, theirs: 'shortest', wider: difference };
}

// What the generator draws, where the library agrees with it to the last module: widths of the
// elements, or 'refused'. Of Code 128 that is where its choice of sets is the same.
export function drawnBy(one) {
  const row = ROW[one.job.symbology];
  const asked = row.draw(one.text.toString('latin1'), one.job);
  if (asked === null || judge(one)) return undefined;
  const theirs = raw(asked.bcid, asked.text, asked.options);
  if (theirs.refusal) return 'refused';
  const letters = lettersOfElements(theirs.elements, row.twoWidths);
  return letters === lettersOfModules(one.answer.modules, row.twoWidths) ? letters : undefined;
}

// Null where judge and library agree, { ours, theirs } where not, undefined where it cannot be asked.
export function judge(one) {
  const row = ROW[one.job.symbology];
  const asked = row.draw(one.text.toString('latin1'), one.job);
  if (asked === null) return undefined;
  const theirs = raw(asked.bcid, asked.text, asked.options);
  const { answer } = one;
  if (answer.status !== 0) return theirs.refusal && !theirs.isDefect ? null : { ours: answer.message, theirs: theirs.refusal ?? 'a symbol' };
  if (isCode128(row.number)) return judgeCode128(one, theirs);
  const ours = lettersOfModules(answer.modules, row.twoWidths);
  const letters = theirs.refusal ?? lettersOfElements(theirs.elements, row.twoWidths);
  return ours === letters ? null : { ours, theirs: letters };
}
