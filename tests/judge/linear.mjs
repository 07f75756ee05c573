// What the linear symbologies are judged on, and by whom. A case is { suite, name, job, text }, the
// name that of its row in the table of results; without picture in its job the readers are not asked.
import { judge as judgeByBwip } from './bwip.mjs';
import { CHECK, checkDigit, code11, modulo10, modulo16, modulo43, spellOut } from './checks.mjs';
import { LINEAR_DIFFERENCES } from './differences.mjs';
import { pictureOf } from './marks.mjs';
import { judgeByZbar, judgeByZxing } from './readers.mjs';
import { ADD_START_STOP, isCode128, PERMIT, ROW, SYMBOLOGIES } from './symbologies.mjs';
import { bytes, CAPITALS, DIGITS, SMALL, Texts } from './texts.mjs';

const BYTES = 1;
const ESCAPED = 3;
const PATTERNS = [0, 1, 2, 3, 5];
const RATIOS = [3, 2.5, 2];
const PIXELS = 4;
const EQUAL_ROWS = 10;  // of a picture: all rows of a bar are equal
const CLASSES_128 = [DIGITS, DIGITS, CAPITALS, SMALL, bytes(32, 63), bytes(0, 31), bytes(128, 255), bytes(96, 127)];
const CLASSES_B = [DIGITS, CAPITALS, SMALL, bytes(32, 127)];

const latin1 = (text) => Buffer.from(text, 'latin1');

// A mark to be read; which one in a row of marks it is chooses pattern, ratio and colour.
function markOf(number, index) {
  const job = {
    symbology: number, input: BYTES, flags: index % 3 === 0 ? 0 : PERMIT,
    pattern: PATTERNS[index % PATTERNS.length], picture: PIXELS,
  };
  if (index % 7 === 0) job.invert = 1;
  if (index % 2 === 0) job.ratio = RATIOS[(index >> 1) % RATIOS.length];
  return job;
}

function textOf(row, texts, length) {
  if (row.isEanUpc) return row.text(texts);
  if (row.number === 7) return texts.runs(CLASSES_B, length);
  if (isCode128(row.number)) return texts.runs(CLASSES_128, length);
  return row.wrap(texts.of(row.alphabet, length), texts);
}

function* random(row, texts, count) {
  for (let i = 0; i < count; ++i) {
    const longest = row.usual ?? 40;
    yield { suite: 'random', job: markOf(row.number, i), text: textOf(row, texts, 1 + texts.below(longest)) };
  }
}

// Every byte alone, first, last and between others, those that are refused too.
function* everyCharacter(row, texts) {
  for (let byte = 0; byte < 256; ++byte) {
    const letter = String.fromCharCode(byte);
    const around = row.isEanUpc ? row.text(texts) : textOf(row, texts, 6);
    const at = 1 + texts.below(around.length - 1);
    const rest = row.isEanUpc ? around.slice(at + 1) : around.slice(at);
    yield { suite: 'characters', job: markOf(row.number, byte), text: around.slice(0, at) + letter + rest };
    if (!row.isEanUpc) yield { suite: 'characters', job: markOf(row.number, byte), text: row.wrap(letter, texts) };
  }
}

function* everyLength(row, texts) {
  for (let length = 0; length <= 40; ++length) {
    for (let i = 0; i < 3; ++i) {
      const text = row.isEanUpc ? texts.of(DIGITS, length) : textOf(row, texts, length);
      yield { suite: 'lengths', job: markOf(row.number, length + i), text };
    }
  }
  if (row.isEanUpc) return;
  for (const length of [41, 60, 79, 80, 81, 100, 200, 250, 300]) {
    yield { suite: 'lengths', job: markOf(row.number, length), text: textOf(row, texts, length) };
  }
}

// Every way to say a number: with its check digit or a wrong one, UPC-E as a UPC-A number or as six
// digits, an add-on behind a sign.
function formOfEanUpc(row, texts) {
  const main = row.text(texts).slice(0, row.digits);
  const number = row.said(row.addOn > 0 ? `${main}+${'0'.repeat(row.addOn)}` : main).bytes;
  const upcA = number.slice(1, 13);
  const whole = row.digits === 7 && row.format === 'UPCE' ? main + upcA[11] : number.slice(number.length - row.addOn - row.digits - 1, number.length - row.addOn);
  const wrong = whole.slice(0, -1) + texts.pick(DIGITS);
  const forms = [main, whole, wrong];
  if (row.format === 'UPCE') forms.push(main.slice(1), upcA, upcA.slice(0, 11), texts.of('012', 11));
  const form = texts.pick(forms);
  if (row.addOn === 0 && texts.below(2) === 0) return form;
  return `${form}+${texts.of(DIGITS, row.addOn || texts.pick([2, 5, 2, 5, 1, 3, 0]))}`;
}

function* formsOfEanUpc(row, texts, count) {
  if (!row.isEanUpc) return;
  const least = row.format === 'UPCE' || row.digits === 11 ? 9 : 7;
  for (let i = 0; i < count; ++i) {
    const job = { ...markOf(row.number, i), addon_gap: texts.pick([0, least + texts.below(13 - least)]) };
    yield { suite: 'forms', job, text: formOfEanUpc(row, texts) };
  }
}

// The text with the check characters of the usual scheme.
const CHECKED = {
  0: (text) => text.slice(0, -1) + modulo16(text) + text.at(-1),
  1: (text) => text + modulo43(text),
  102: (text) => text + modulo43(spellOut(text)),
  4: (text) => text + modulo10(text),
  11: (text) => text + code11(text),
  21: (text) => text + checkDigit(text),
};

// Function characters and bytes of Code 128 by escapes. What FNC2 and FNC3 mean is not a reader's text.
function* escapes(texts, count) {
  for (let i = 0; i < count; ++i) {
    const isRead = i % 2 === 0;
    const signs = isRead ? ['^FNC1', '^^'] : ['^FNC1', '^FNC2', '^FNC3', '^^'];
    let text = texts.runs([DIGITS, CAPITALS, SMALL], 3);
    for (let rest = 1 + texts.below(3); rest > 0; --rest) {
      const number = texts.pick([`^${String(texts.below(256)).padStart(3, '0')}`, '']);
      text += texts.pick(signs) + texts.runs([DIGITS, CAPITALS, SMALL], 1 + texts.below(8)) + number;
    }
    const job = { ...markOf(5, i), input: ESCAPED };
    if (!isRead) delete job.picture;
    yield { suite: 'escapes', job, text };
  }
}

// Every scheme; of texts that bring their check character every fourth with another one.
function* schemes(row, texts, count) {
  for (const check of row.checks ?? []) {
    for (let i = 0; i < count; ++i) {
      let text = texts.between(row.alphabet, 1, row.usual ?? 25);
      const job = { ...markOf(row.number, i), check };
      if (row.number === 0 && i % 3 === 0) job.flags |= ADD_START_STOP;
      else if (row.number === 0) text = `${texts.pick('ABCD')}${text}${texts.pick('ABCD')}`;
      if (check === CHECK.VERIFY) {
        const framed = row.number === 0 && i % 3 === 0 ? `A${text}A` : text;
        text = i % 4 === 0 ? text : CHECKED[row.number](framed);
      }
      yield { suite: 'schemes', job, text };
    }
  }
}

// 13 and 14 digits, with right and wrong check digits.
function* itf14(texts, count) {
  for (let i = 0; i < count; ++i) {
    const digits = texts.of(DIGITS, 13);
    const text = [digits, digits + checkDigit(digits), digits + texts.pick(DIGITS)][i % 3];
    yield { suite: 'schemes', job: markOf(101, i), text };
  }
}

// Texts of docs/deviations.md: what the device writes otherwise.
const REGISTER = {
  0: ['1234', 'A1234', '1234B', 'AB', 'A', 'T1*', 'N1E', '*1N', 'E1T', 'A1B2C', ''],
  1: ['W', '/', 'E', 'EFGHIJKLMNOPQRSTUVWXYZ', 'A*B', '*', '%%', 'A%%B', '%s%d', '%%%', '100%', 'abc', ''],
  2: ['$', '%', '+', '/', '$%+/', 'A$B%C+D/E', 'a', ''],
  22: ['$', '%', '+', '/', '$%+/', 'a$b%', '0\x80', '\x80A', '\xff', '\x7f', ''],
  3: ['950110153100', '000000000000', '999999999999', '9501101531000', '9501101531001'],
  4: ['', '0', '00', '1234567', DIGITS.repeat(10)],
  11: ['', '1234567890', '123456789', '12345678901', '123-45', '----------', '-----------'],
  21: ['', '1', '12', '123', '12345', '123456', '1234567', '12345678901234'],
  5: ['123', '12345', 'A1', 'A1234567', '1', '12a', 'A\x7fB', '\x80', '\xe9\xe9\xe9\xe9\xe9', 'x'.repeat(79), 'x'.repeat(80)],
  6: ['A\x7fB', '\x7f', '\x00', 'a', 'A'.repeat(79), 'A'.repeat(80)],
  7: ['A\x7fB', '\x1f', 'x'.repeat(79), 'x'.repeat(80)],
  8: ['1', '12', '123', '1'.repeat(158), '1'.repeat(160), 'A12'],
  9: ['03600029145', '00000000000', '99999999999', '036000291452', '036000291453', '0425261', '04252614'],
  10: ['0425261', '1425261', '0000003', '0000103', '0000203', '0000303', '0123403', '0100004', '0100014', '0123404', '0123405', '0123415', '0123409', '04252614', '04252615',
       '04210000526', '042100005264', '042100005265', '12345678901'],
  12: ['9638507', '96385074', '96385075'],
  13: ['0360002914512'], 14: ['0360002914552495'], 15: ['97713845240112'], 16: ['97808777993054321'],
  17: ['963850712'], 18: ['963850752495'], 19: ['042526112', '142526112'], 20: ['042526152495', '142526152495'],
};

function* ofTheRegister(row) {
  for (const text of REGISTER[row.number] ?? []) {
    for (const flags of [0, PERMIT]) {
      yield { suite: 'register', job: { ...markOf(row.number, 1), flags }, text };
    }
  }
}

// Lengths of Code 128 alone: nobody reads these.
function* lengthsOfCode128(texts, count) {
  for (let i = 0; i < count; ++i) {
    const text = texts.runs(CLASSES_128, 1 + texts.below(60));
    yield { suite: 'shortest', job: { symbology: 5, input: BYTES }, text };
  }
}

function cases(share) {
  const found = [];
  for (const row of SYMBOLOGIES) {
    const texts = new Texts(1000 + row.number);
    found.push(...random(row, texts, Math.ceil(1000 * share)), ...everyCharacter(row, texts));
    found.push(...everyLength(row, texts), ...ofTheRegister(row));
    found.push(...schemes(row, texts, Math.ceil(200 * share)));
    found.push(...formsOfEanUpc(row, texts, Math.ceil(500 * share)));
  }
  found.push(...itf14(new Texts(14), Math.ceil(400 * share)));
  found.push(...escapes(new Texts(3), Math.ceil(1000 * share)));
  found.push(...lengthsOfCode128(new Texts(128), Math.ceil(10000 * share)));
  return found.map((one) => ({ ...one, name: ROW[one.job.symbology].name, text: latin1(one.text) }));
}

async function judge(one, say) {
  say('bwip-js', judgeByBwip(one));
  if (one.answer.picture === undefined) return;
  const row = ROW[one.job.symbology];
  const picture = pictureOf(one.answer.picture, EQUAL_ROWS);
  if (row.format) say('zxing', await judgeByZxing(one, picture));
  if (row.zbar) say('zbar', await judgeByZbar(one, picture));
}

export const linear = { title: 'symbology', judges: ['bwip-js', 'zxing', 'zbar'], cases, judge, differences: LINEAR_DIFFERENCES };
