"""Assembly of the functions that lead from the image's code to the runtime.

A stub loads the address that the loader has written into its slot of the import address table and goes there by BX, the
one branch of ARMv4T that also reaches Thumb code. Stub and slot are sections of their own, so that the linker drops those
that nobody calls. The slot's symbol carries the imported name: SLOT_PREFIX + name.
"""

SLOT_PREFIX = "__imp_"

_STUB = '''
  .section .text.{slot}.{symbol}, "ax", %progbits
  .balign 4
  .global {symbol}
  .type {symbol}, %function
{symbol}:
  ldr ip, 1f
  ldr ip, [ip]
  bx ip
1:
  .word "{slot}{name}"
  .size {symbol}, . - {symbol}

  .section .idata.{symbol}, "aw", %progbits
  .global "{slot}{name}"
"{slot}{name}":
  .word 0
'''


def assembly(imports):
    """Source for the assembler, one stub and one slot for each import."""
    stubs = [_STUB.format(symbol=i.symbol, name=i.name, slot=SLOT_PREFIX) for i in imports]
    return "  .syntax unified\n  .arch armv4t\n  .arm\n" + "".join(stubs)
