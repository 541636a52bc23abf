#!/usr/bin/env python3
"""Makes the large report files and the CSV files that must come of them.

It is written from the register's records as they lie in the file, field behind field, and shares nothing with the
program: run it in this folder when a layout changes, and look at the difference before it is committed.
"""

import random

DECIMALS = 2
VALUE, COUNT, BYTE, SKIP = "value", "count", "byte", "skip"


def fields(text):
    """'Name:kind ...' as (name, width, kind); what a number stands behind is that many bytes wide."""
    rows = []
    for word in text.split():
        name, kind = word.split(":")
        width = {VALUE: 8, COUNT: 2, BYTE: 1}.get(kind)
        if width is None:
            kind, width = SKIP, int(kind)
        rows.append((name, width, kind))
    return rows


TAXES = "".join(
    f"Tax{i}Amount:value Tax{i}SalesWithoutTax:value Tax{i}SalesWithTax:value " for i in (1, 2, 3, 4)
)
CREDITS = "".join(f"Credit{i}PaymentCounter:count Credit{i}Total:value " for i in range(1, 7))
HEAD = fields(
    "AllDepartmentSalesTotal:value Tax0TotalSales:value "
    + TAXES
    + "AllTaxAmount:value AllTaxSalesWithoutTax:value AllTaxSalesWithTax:value"
)
MIDDLE = fields(
    "RefoundCounter:count RefoundTotal:value VoidTotal:value FullVoidCounter:count FullVoidTotaler:value "
    "NetSalesTotal:value GrossSalesTotal:value AdjustTotal:value CashPaymentCounter:count CashTotal:value "
    "CheckPaymentCounter:count CheckTotal:value ChargePaymentCounter:count ChargeTotal:value "
    + CREDITS
    + "RaCounter:count RaTotal:value PoCounter:count PoTotal:value NoSaleCounter:count CashInDrawerTotal:value "
    "CheckInDrawerTotal:value ChargeInDrawerTotal:value Credit1InDrawerTotal:value Credit2InDrawerTotal:value"
)
HIGH_CREDITS = fields("".join(f"Credit{i}InDrawerTotal:value " for i in range(3, 7)))
TAIL = fields(
    "Fc1InDrawerTotal:value Fc2InDrawerTotal:value Fc3InDrawerTotal:value Fc4InDrawerTotal:value "
    "NewBalanceCounter:count NewBalanceTotal:value CloseBalanceCounter:count CloseBalanceTotal:value "
    "OpenTableCounter:count OpenTableTotal:value GuestCounter:count InvoiceCounter:count OpeningPettyCash:value "
    "PriceChangeCounter:count DrawerOpenCounter:count TrainingReceiptCounter:count TrainingSalesTotale:value "
    "CopyReceiptCounter:count CopyReceiptTotal:value ProformaReceiptCounter:count ProfotmaReceiptTotal:value"
)
# The eight totals of the percentages lie in this order in the record.
FINANCIAL_EIGHT = fields(
    "ItemPM1Total:value SubtotalPM1Total:value nobody:8 SubtotalPM2Total:value ItemPM2Total:value SubtotalP1Total:value "
    "ItemP2Total:value SubtotalP2Total:value"
)
CLERK_EIGHT = fields(
    "ItemPMTotal:value SubtotalPMTotal:value nobody:16 ItemP1Total:value SubtotalP1Total:value ItemP2Total:value "
    "SubtotalP2Total:value"
)
SHORT_FINANCIAL = HEAD + FINANCIAL_EIGHT + MIDDLE + HIGH_CREDITS + TAIL + fields("GrandTotal:value")
FINANCIAL = SHORT_FINANCIAL + fields("GTGross:value GTReturn:value")
CLERK_BODY = HEAD + CLERK_EIGHT + MIDDLE + fields("nobody:32") + TAIL
CLERK = fields("ClerkNumber:byte") + CLERK_BODY

FINANCIAL_ORDER = (
    [name for name, _, _ in HEAD]
    + "ItemPM1Total SubtotalPM1Total ItemPM2Total SubtotalPM2Total ItemP2Total SubtotalP1Total ItemP2Total "
    "SubtotalP2Total".split()
    + [name for name, _, _ in MIDDLE + HIGH_CREDITS + TAIL]
    + ["GrandTotal"]
)
FINANCIAL_NAMES = FINANCIAL_ORDER.copy()
FINANCIAL_NAMES[FINANCIAL_NAMES.index("SubtotalPM2Total") + 1] = "ItemP1Total"
CLERK_ORDER = [name for name, _, kind in CLERK if kind != SKIP]
CLERK_NAMES = ["FullVoidTotal" if name == "FullVoidTotaler" else name for name in CLERK_ORDER]
HIGH_PAYMENTS = {f"Credit{i}{what}" for i in range(3, 7) for what in ("PaymentCounter", "Total")}
BOTH_NAMES = [
    "InvoiceCounterInvoiceCounter" if name == "InvoiceCounter" else name
    for name in CLERK_ORDER
    if name not in HIGH_PAYMENTS
]
BOTH_ORDER = [name for name in CLERK_ORDER if name not in HIGH_PAYMENTS]
BOTH_ORDER = BOTH_ORDER[: BOTH_ORDER.index("InvoiceCounter") + 1]

assert sum(width for _, width, _ in FINANCIAL) == 568
assert sum(width for _, width, _ in SHORT_FINANCIAL) == 552
assert sum(width for _, width, _ in CLERK) == 545
assert (len(FINANCIAL_ORDER), len(CLERK_ORDER), len(BOTH_ORDER), len(BOTH_NAMES)) == (87, 81, 64, 73)


def packed(number, width):
    digits = str(number).rjust(2 * width, "0")
    assert len(digits) == 2 * width
    return bytes(int(digits[i : i + 2], 16) for i in range(2 * width - 2, -1, -2))


def signed(number, width):
    return packed(number if number >= 0 else 10 ** (2 * width - 1) - number, width)


def amount(number):
    sign, number = ("-", -number) if number < 0 else ("", number)
    return f"{sign}{number // 10 ** DECIMALS}.{number % 10 ** DECIMALS:0{DECIMALS}}"


def quantity(number):
    sign, number = ("-", -number) if number < 0 else ("", number)
    return sign + f"{number // 10000}.{number % 10000:04}".rstrip("0").rstrip(".")


def record(rng, rows):
    """The bytes of a record with random fields, and what each field reads as."""
    data, shown = b"", {}
    for name, width, kind in rows:
        if kind == VALUE:
            number = rng.choice((0, rng.randrange(10**6), -rng.randrange(1, 10**6), rng.randrange(10**15)))
            data += signed(number, width)
            shown[name] = amount(number)
        elif kind == COUNT:
            number = rng.randrange(10 ** rng.randrange(5))
            data += packed(number, width)
            shown[name] = str(number)
        elif kind == BYTE:
            number = rng.randrange(256)
            data += bytes([number])
            shown[name] = str(number)
        else:
            data += bytes(rng.randrange(256) for _ in range(width))
    return data, shown


def write(name, data, header, lines):
    with open(name + ".bin", "wb") as file:
        file.write(data)
    with open(name + ".csv", "wb") as file:
        file.write(b"".join(line + b"\r\n" for line in [header.encode()] + lines))


def totals(name, rows, records, order, names, seed, behind=b""):
    rng = random.Random(seed)
    data, lines = b"", []
    for _ in range(records):
        one, shown = record(rng, rows)
        data += one
        lines.append(";".join(shown[column] for column in order).encode())
    write(name, data + behind, ";".join(names), lines)


# Characters of the register and of the code page, where they differ.
REGISTER = {0x94: 0xFC, 0x8A: 0xC1, 0xD8: 0xC4, 0xF0: 0xE9, 0xF8: 0x80, 0xBA: 0xD7, 0x80: 0xD7, 0xFF: 0xB7}


def page(text):
    return bytes(REGISTER.get(code, code) for code in text)


def some_text(rng, width):
    letters = b"ABCDEFGHIJKLMNOPQRSTUVWXYZ abcdefghij 0123456789;.-" + bytes(REGISTER)
    return bytes(rng.choice(letters) for _ in range(width))


def items():
    rng = random.Random(7)
    data, lines = b"", []
    for i in range(3000):
        code = rng.choice((i + 1, rng.randrange(10**13), 10**16 - 1 - i))
        counts = [rng.choice((0, rng.randrange(10**8), -rng.randrange(1, 10**6) * 100)) for _ in range(2)]
        sums = [rng.choice((0, rng.randrange(10**6), -rng.randrange(1, 10**4))) for _ in range(2)]
        data += packed(code, 8)
        line = [str(code)]
        for count, total in zip(counts, sums):
            data += signed(count, 6) + signed(total, 8)
            line += [quantity(count), amount(total)]
        lines.append(";".join(line).encode())
    write("ALL PLU", data, "FreeCode;Price1Cnt;Price1Total;Price2Cnt;Price2Total", lines)


def stock(name, seed, records, padded_to=0):
    rng = random.Random(seed)
    data, lines = b"", []
    for i in range(records):
        text, count = some_text(rng, 16), rng.choice((0, rng.randrange(10**9), -rng.randrange(1, 10**6)))
        data += packed(i * 37, 8) + text + signed(count, 6)
        lines.append(str(i * 37).encode() + b";" + page(text) + b";" + quantity(count).encode())
    lines += [b"0;" + bytes(16) + b";0"] * (padded_to - records)
    write(name, data, "FreeCode;Name;StockCounter", lines)


def journal(name, seed, records, full):
    rng = random.Random(seed)
    data, lines = b"", []
    for _ in range(records):
        text = some_text(rng, 24)
        if rng.randrange(3) == 0:
            place = rng.randrange(22)
            text = text[:place] + rng.choice((b"255", b"\xff\xff\xff")) + text[place + 3 :]
        data += text + bytes(rng.randrange(256) for _ in range(2))
        shown, place, mark = bytearray(text), 0, b"\xff" if full else b"255"
        while (place := bytes(shown).find(mark, place)) >= 0:
            shown[place] = 0x20
            place += 1
            if place + 1 >= len(shown):  # counted from 1, it has reached the last character
                break
        lines.append(page(bytes(shown)))
    write(name, data + bytes(26) + b"behind the end of it      ", "LineFromEj", lines)


totals("FINANCIAL", FINANCIAL, 1, FINANCIAL_ORDER + ["GTGross", "GTReturn"], FINANCIAL_NAMES + ["GTGross", "GTReturn"], 4)
totals("TRAINING", SHORT_FINANCIAL, 1, FINANCIAL_ORDER, FINANCIAL_NAMES, 13)
totals("FINANCIAL2", SHORT_FINANCIAL, 1, FINANCIAL_ORDER, FINANCIAL_NAMES, 14)
totals("ALL CLERK", CLERK, 15, CLERK_ORDER, CLERK_NAMES, 9)
totals("ALL T-CLERK", CLERK, 15, CLERK_ORDER, CLERK_NAMES, 10)
totals("NT-CLERK", CLERK, 1, BOTH_ORDER, BOTH_NAMES, 11, behind=bytes(range(200)) + bytes(344))
items()
stock("ASK", 20, 700, padded_to=3000)
stock("MSK", 21, 123)
journal("FULL EJ", 16, 500, full=True)
journal("OLD EJ", 17, 300, full=False)
journal("LATE EJ", 18, 100, full=False)
journal("DAILY EJ", 19, 200, full=False)
