// Check characters, computed plainly: what a reader finds at the end of a text.
import { CAPITALS, DIGITS } from './texts.mjs';

// job.check
export const CHECK = {
  OWN: 0, NONE: 1, VERIFY: 2, MOD_43: 3, MOD_16: 4, ITF_10: 5,
  MSI_10: 6, MSI_10_10: 7, MSI_11: 8, MSI_11_10: 9, MSI_NCR_11: 10, MSI_NCR_11_10: 11, CODE_11_C: 12, CODE_11_CK: 13,
};

const CODE_39 = `${DIGITS}${CAPITALS}-. $/+%`;
const CODABAR = `${DIGITS}-$:/.+ABCD`;
const CODE_11 = `${DIGITS}-`;

// Sum of the characters' values, each with its weight; the last character has index 0.
const sumOf = (text, values, weight) =>
  [...text].reverse().reduce((sum, character, index) => sum + values.indexOf(character) * weight(index), 0);

// Modulo 10 of the GS1 General Specifications: weights 3, 1 from the right.
export const checkDigit = (digits) => String((10 - (sumOf(digits, DIGITS, (index) => (index % 2 === 0 ? 3 : 1)) % 10)) % 10);
export const modulo43 = (text) => CODE_39[sumOf(text, CODE_39, () => 1) % 43];
// Of a text with start and stop.
export const modulo16 = (text) => CODABAR[(16 - (sumOf(text, CODABAR, () => 1) % 16)) % 16];

// Of MSI: every second digit from the last on is doubled, and its digits are added.
export function modulo10(digits) {
  const sum = [...digits].reverse().reduce((total, digit, index) => {
    const value = Number(digit) * (index % 2 === 0 ? 2 : 1);
    return total + (value > 9 ? value - 9 : value);
  }, 0);
  return String((10 - (sum % 10)) % 10);
}

// C, and K above ten characters.
export function code11(text) {
  const withC = text + CODE_11[sumOf(text, CODE_11, (index) => (index % 10) + 1) % 11];
  if (text.length <= 10) return withC.slice(text.length);
  return (withC + CODE_11[sumOf(withC, CODE_11, (index) => (index % 9) + 1) % 11]).slice(text.length);
}

// Full ASCII as the characters of Code 39 that are drawn.
export function spellOut(text) {
  const spelled = (code) => {
    const character = String.fromCharCode(code);
    const letter = (first) => String.fromCharCode(65 + code - first);
    if (/[0-9A-Z. -]/.test(character)) return character;
    if (code === 0) return '%U';
    if (code <= 26) return `$${letter(1)}`;
    if (code <= 31) return `%${letter(27)}`;
    if (character === ':') return '/Z';
    if (code <= 47) return `/${letter(33)}`;
    if (code <= 63) return `%${String.fromCharCode(70 + code - 59)}`;
    if (code === 64) return '%V';
    if (code <= 95) return `%${String.fromCharCode(75 + code - 91)}`;
    if (code === 96) return '%W';
    if (code <= 122) return `+${letter(97)}`;
    return `%${String.fromCharCode(80 + code - 123)}`;
  };
  return [...text].map((character) => spelled(character.charCodeAt(0))).join('');
}
