@ What scripts/check-instructions has to find: nine instructions that the device does not have, and two that it has.
  .arch armv7-a
  .fpu vfpv3
  .syntax unified
  .arm
  clz r0, r0
  blx lr
  ldrd r0, r1, [sp]
  strd r0, r1, [sp]
  movw r0, #1
  vadd.f64 d0, d0, d0
  vldr d0, [sp]
  smulbb r0, r0, r0
  mrc p15, 0, r0, c0, c0, 0
  muls r0, r1, r2
  addseq r0, r1, r2
