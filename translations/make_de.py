#!/usr/bin/env python3
"""Writes translations/qorkit_de.ts from the English template qorkit_en.ts.

    python3 translations/make_de.py [TEMPLATE] [OUTPUT]

Whole texts come from EXACT; unit names are put together from the word tables below
(German unit names in the singular, as German unit lists write them: "Meter", "Zoll",
"Pfund"; "X per Y" becomes "X pro Y", "Cubic"/"Square" become "Kubik"/"Quadrat" compounds,
SI prefixes are kept in front of the translated unit). Symbols stay as they are. The script
stops with a list of the words it cannot translate, so a new library text never slips into
the German file in English.
"""
import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

HERE = Path(__file__).resolve().parent

# ---------------------------------------------------------------------------------------------
# Whole texts: messages, calculator captions and hints, quantity names and the unit names that
# do not follow the word rules.
EXACT = {
    # base library
    "Division by zero": "Division durch null",
    "Invalid equation": "Ungültige Gleichung",
    "Square root of a negative number": "Quadratwurzel aus einer negativen Zahl",
    "M": "M",
    "Complex division by zero": "Komplexe Division durch null",
    "Not defined for this value": "Für diesen Wert nicht definiert",
    "Invalid date": "Ungültiges Datum",
    "Invalid latitude": "Ungültige geografische Breite",
    "Invalid longitude": "Ungültige geografische Länge",
    "N": "N", "S": "S", "E": "O", "W": "W",
    "Invalid floating point operation": "Ungültige Gleitkommaoperation",
    "Floating point overflow": "Gleitkommaüberlauf",
    "Logarithm of zero or a negative number": "Logarithmus von null oder einer negativen Zahl",
    "Argument out of the function's domain": "Argument außerhalb des Definitionsbereichs",
    "'%s' is not a valid floating point value": "'%s' ist keine gültige Gleitkommazahl",
    "'%s' is not a valid integer value": "'%s' ist keine gültige ganze Zahl",
    "'%s' is not a valid hexadecimal value": "'%s' ist keine gültige Hexadezimalzahl",
    "'%s' is not a valid binary value": "'%s' ist keine gültige Binärzahl",
    "'%s' is not a valid octal value": "'%s' ist keine gültige Oktalzahl",
    "'%s' is not a valid angle": "'%s' ist kein gültiger Winkel",
    "'%s' is out of the integer range": "'%s' liegt außerhalb des Ganzzahlbereichs",
    # calculator: messages and paper tape
    "Error!": "Fehler!",
    "- - - - ERROR - - - -": "- - - - FEHLER - - - -",
    "x ^ y": "x ^ y", "x ^ 1/y": "x ^ 1/y",
    "mod": "mod", "rem": "rest", "div": "div", "intdiv": "ganzdiv",
    "sin": "sin", "arcsin": "arcsin", "sinh": "sinh", "arsinh": "arsinh",
    "cos": "cos", "arccos": "arccos", "cosh": "cosh", "arcosh": "arcosh",
    "tan": "tan", "arctan": "arctan", "tanh": "tanh", "artanh": "artanh",
    "log": "lg", "10^x": "10^x", "ln": "ln", "e^x": "e^x", "log2": "lb", "2^x": "2^x",
    "sqrt": "Wurzel", "x^2": "x^2", "abs": "Betrag", "floor": "abrunden",
    "ceiling": "aufrunden", "sign": "sgn", "gamma": "Gamma", "ln gamma": "ln Gamma",
    "1/x": "1/x", "round": "runden",
    "deg": "deg", "rad": "rad", "gra": "gon",
    "M+": "M+", "M-": "M-", "MC": "MC", "MR": "MR",
    "- - - - - - - - - - -": "- - - - - - - - - - -",
    "Unknown Function": "Unbekannte Funktion",
    # the programmer's operators keep their programming names, on the tape as on the keys
    "MOD": "MOD", "AND": "AND", "OR": "OR", "XOR": "XOR", "NAND": "NAND", "NOR": "NOR",
    "XNOR": "XNOR", "NOT": "NOT", "NEG": "NEG", "SHL": "SHL", "SHR": "SHR", "ROL": "ROL",
    "ROR": "ROR",
    # programmer's calculator
    "Bin": "Bin", "Dec": "Dez", "Hex": "Hex", "Oct": "Okt",
    "8 bits": "8 Bit", "16 bits": "16 Bit", "32 bits": "32 Bit", "64 bits": "64 Bit",
    "No Spacing": "Ohne Abstand", "Byte Spacing": "Abstand je Byte",
    "Word Spacing": "Abstand je Word", "DWord Spacing": "Abstand je DWord",
    "Clear": "Löschen", "Truncate": "Abschneiden", "Extend": "Erweitern",
    "Calculator": "Rechner",
    # key captions: the usual German calculator keys; the programmer's operators keep their
    # programming names (German "oder", "nicht" would not fit their keys, and the key's hint
    # shares the text)
    "inv": "inv", "hyp": "hyp", "lg2": "lb", "exp": "exp",
    "AC": "AC", "C": "C", "Cl": "Lö",
    "and": "and", "or": "or", "xor": "xor", "nand": "nand", "nor": "nor",
    "xnor": "xnor", "not": "not", "neg": "neg", "shl": "shl", "shr": "shr", "rol": "rol",
    "ror": "ror",
    # hints
    "Change Sign": "Vorzeichen wechseln",
    "Add": "Addieren", "Subtract": "Subtrahieren", "Multiply": "Multiplizieren",
    "Divide": "Dividieren", "BackSpace": "Rückschritt", "All Clear": "Alles löschen",
    "Clear Memory": "Speicher löschen", "Add To Memory": "Zum Speicher addieren",
    "Subtract From Memory": "Vom Speicher subtrahieren", "Memory Recall": "Speicher abrufen",
    "Raised to the Power of": "Hoch (Potenz)", "Pi (Constant)": "Pi (Konstante)",
    "Natural Constant": "Eulersche Zahl", "Squares the Value": "Quadriert den Wert",
    "Square Roots the Value": "Zieht die Quadratwurzel", "Inverts the Value": "Kehrwert",
    "Logarithm to Base 10": "Logarithmus zur Basis 10", "Natural Logarithm": "Natürlicher Logarithmus",
    "Logarithm to Base 2": "Logarithmus zur Basis 2",
    "Sine of Value": "Sinus des Werts", "Cosine of Value": "Kosinus des Werts",
    "Tangent of Value": "Tangens des Werts", "Inverse Operation": "Umkehrfunktion",
    "Hyperbolic Function": "Hyperbelfunktion", "x Percent of y": "x Prozent von y",
    "Radians or Degrees": "Bogenmaß oder Grad", "exclusive or": "exklusives Oder",
    "not and": "nicht und", "not or": "nicht oder", "not exclusive or": "nicht exklusives Oder",
    "negate": "negieren", "shift left": "nach links schieben", "shift right": "nach rechts schieben",
    "rotate left": "nach links rotieren", "rotate right": "nach rechts rotieren",
    "choose desired base": "Zahlenbasis wählen", "choose desired bit length": "Bitlänge wählen",
    "Exit and Transfer Result": "Beenden und Ergebnis übernehmen",
    "Exit and Do Not Transfer Result": "Beenden ohne Ergebnis zu übernehmen",
    "Copy Value to ClipBoard": "Wert in die Zwischenablage kopieren",
    "Paste Value from Clipboard": "Wert aus der Zwischenablage einfügen",
    "Value": "Wert", "Memory": "Speicher", "Decimal Places": "Nachkommastellen",
    "The currency symbol can only be changed when the edit uses its own currency format":
        "Das Währungssymbol lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet",
    "The currency format can only be changed when the edit uses its own currency format":
        "Das Währungsformat lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet",
    "The negative currency format can only be changed when the edit uses its own currency format":
        "Das negative Währungsformat lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet",
    "Cannot show more than ": "Es können nicht mehr als ",
    " decimal places": " Nachkommastellen angezeigt werden",
    # imperial measures, float edit
    "Ratio cannot be 0": "Das Verhältnis darf nicht 0 sein",
    "Cannot have different Powers": "Unterschiedliche Potenzen sind nicht möglich",
    "Cannot have different Units": "Unterschiedliche Einheiten sind nicht möglich",
    "Cannot Find Square Root with an odd Power": "Keine Quadratwurzel bei ungerader Potenz",
    "const": "konst", "Power": "Potenz",
    "'%s' is outside the allowed range": "'%s' liegt außerhalb des erlaubten Bereichs",
    "The value is not a finite number": "Der Wert ist keine endliche Zahl",
    # expression edit
    "'%s' cannot be evaluated": "'%s' kann nicht berechnet werden",
    # dialogs: the paper tape
    "Paper Tape": "Papierstreifen", "Copy Tape": "Papierstreifen kopieren",
    # dialogs: what assistive technology says of the panels and keys
    "value": "Wert", "The value being entered or the last result": "Der eingegebene Wert oder das letzte Ergebnis",
    "memory": "Speicher", "The value held in memory": "Der Wert im Speicher",
    "decimal places": "Nachkommastellen",
    "How many decimal places the value shows": "Wie viele Nachkommastellen der Wert zeigt",
    "number base": "Zahlenbasis", "bit length": "Bitlänge",
    "Every number and operation so far, newest last": "Alle bisherigen Zahlen und Operationen, die neueste zuletzt",
    "zero": "null", "one": "eins", "two": "zwei", "three": "drei", "four": "vier", "five": "fünf",
    "six": "sechs", "seven": "sieben", "eight": "acht", "nine": "neun",
    "Enters the digit 0": "Gibt die Ziffer 0 ein", "Enters the digit 1": "Gibt die Ziffer 1 ein",
    "Enters the digit 2": "Gibt die Ziffer 2 ein", "Enters the digit 3": "Gibt die Ziffer 3 ein",
    "Enters the digit 4": "Gibt die Ziffer 4 ein", "Enters the digit 5": "Gibt die Ziffer 5 ein",
    "Enters the digit 6": "Gibt die Ziffer 6 ein", "Enters the digit 7": "Gibt die Ziffer 7 ein",
    "Enters the digit 8": "Gibt die Ziffer 8 ein", "Enters the digit 9": "Gibt die Ziffer 9 ein",
    "decimal point": "Dezimaltrennzeichen", "Starts the decimals of the number": "Beginnt die Nachkommastellen der Zahl",
    "plus": "plus", "Adds the next number": "Addiert die nächste Zahl",
    "minus": "minus", "Subtracts the next number": "Subtrahiert die nächste Zahl",
    "times": "mal", "Multiplies by the next number": "Multipliziert mit der nächsten Zahl",
    "divided by": "geteilt durch", "Divides by the next number": "Teilt durch die nächste Zahl",
    "equals": "gleich", "Completes the calculation and shows the result": "Schließt die Rechnung ab und zeigt das Ergebnis",
    "open bracket": "Klammer auf", "Opens a bracket": "Öffnet eine Klammer",
    "close bracket": "Klammer zu", "Closes the bracket and calculates its contents": "Schließt die Klammer und berechnet ihren Inhalt",
    "all clear": "alles löschen", "Clears the calculation and the tape; the memory is kept": "Löscht die Rechnung und den Papierstreifen; der Speicher bleibt",
    "clear entry": "Eingabe löschen", "Clears the value being entered": "Löscht den eingegebenen Wert",
    "backspace": "Rückschritt", "Deletes the last digit entered": "Löscht die zuletzt eingegebene Ziffer",
    "memory clear": "Speicher löschen", "Sets the memory to zero": "Setzt den Speicher auf null",
    "memory recall": "Speicher abrufen", "Shows the value held in memory": "Zeigt den Wert im Speicher",
    "memory add": "Speicher plus", "Adds the value to the memory": "Addiert den Wert zum Speicher",
    "memory subtract": "Speicher minus", "Subtracts the value from the memory": "Subtrahiert den Wert vom Speicher",
    "OK": "OK", "Closes the calculator and takes the result": "Schließt den Rechner und übernimmt das Ergebnis",
    "cancel": "abbrechen", "Closes the calculator without taking the result": "Schließt den Rechner, ohne das Ergebnis zu übernehmen",
    "copy": "kopieren", "Copies the value to the clipboard": "Kopiert den Wert in die Zwischenablage",
    "paste": "einfügen", "Enters the number on the clipboard": "Gibt die Zahl aus der Zwischenablage ein",
    "change sign": "Vorzeichen wechseln", "Changes the sign of the value": "Wechselt das Vorzeichen des Werts",
    "power": "Potenz", "Raises the value to the power of the next number; with inverse, takes that root":
        "Potenziert den Wert mit der nächsten Zahl; mit Umkehrung die entsprechende Wurzel",
    "pi": "Pi", "Enters the constant pi": "Gibt die Konstante Pi ein",
    "Euler's number": "Eulersche Zahl", "Enters the constant e": "Gibt die Konstante e ein",
    "square": "Quadrat", "Squares the value": "Quadriert den Wert",
    "square root": "Quadratwurzel", "Takes the square root of the value": "Zieht die Quadratwurzel aus dem Wert",
    "reciprocal": "Kehrwert", "Divides one by the value": "Teilt eins durch den Wert",
    "common logarithm": "Zehnerlogarithmus",
    "Logarithm to base 10; with inverse, ten to the power of the value": "Logarithmus zur Basis 10; mit Umkehrung zehn hoch den Wert",
    "natural logarithm": "natürlicher Logarithmus",
    "Logarithm to base e; with inverse, e to the power of the value": "Logarithmus zur Basis e; mit Umkehrung e hoch den Wert",
    "binary logarithm": "Zweierlogarithmus",
    "Logarithm to base 2; with inverse, two to the power of the value": "Logarithmus zur Basis 2; mit Umkehrung zwei hoch den Wert",
    "sine": "Sinus", "Sine of the value; with inverse the arcsine, with hyperbolic the hyperbolic sine":
        "Sinus des Werts; mit Umkehrung der Arkussinus, hyperbolisch der Sinus hyperbolicus",
    "cosine": "Kosinus", "Cosine of the value; with inverse the arccosine, with hyperbolic the hyperbolic cosine":
        "Kosinus des Werts; mit Umkehrung der Arkuskosinus, hyperbolisch der Kosinus hyperbolicus",
    "tangent": "Tangens", "Tangent of the value; with inverse the arctangent, with hyperbolic the hyperbolic tangent":
        "Tangens des Werts; mit Umkehrung der Arkustangens, hyperbolisch der Tangens hyperbolicus",
    "inverse": "Umkehrung", "Switches the next function to its inverse": "Schaltet die nächste Funktion auf ihre Umkehrfunktion",
    "hyperbolic": "hyperbolisch", "Switches the next trigonometric function to its hyperbolic form":
        "Schaltet die nächste Winkelfunktion auf ihre hyperbolische Form",
    "percent": "Prozent", "Takes the value as a percentage": "Nimmt den Wert als Prozentsatz",
    "angle unit": "Winkeleinheit", "Switches between degrees, radians and gradians": "Wechselt zwischen Grad, Bogenmaß und Gon",
    "exponent": "Exponent", "Starts the power of ten of the number": "Beginnt die Zehnerpotenz der Zahl",
    "hex digit A": "Hex-Ziffer A", "hex digit B": "Hex-Ziffer B", "hex digit C": "Hex-Ziffer C",
    "hex digit D": "Hex-Ziffer D", "hex digit E": "Hex-Ziffer E", "hex digit F": "Hex-Ziffer F",
    "Enters the hexadecimal digit A": "Gibt die Hexadezimalziffer A ein",
    "Enters the hexadecimal digit B": "Gibt die Hexadezimalziffer B ein",
    "Enters the hexadecimal digit C": "Gibt die Hexadezimalziffer C ein",
    "Enters the hexadecimal digit D": "Gibt die Hexadezimalziffer D ein",
    "Enters the hexadecimal digit E": "Gibt die Hexadezimalziffer E ein",
    "Enters the hexadecimal digit F": "Gibt die Hexadezimalziffer F ein",
    "modulo": "modulo", "Remainder of the division by the next number": "Rest der Division durch die nächste Zahl",
    "bitwise and": "bitweises Und", "Bits set in both numbers": "Bits, die in beiden Zahlen gesetzt sind",
    "bitwise or": "bitweises Oder", "Bits set in either number": "Bits, die in einer der Zahlen gesetzt sind",
    "bitwise exclusive or": "bitweises exklusives Oder", "Bits set in exactly one of the numbers": "Bits, die in genau einer der Zahlen gesetzt sind",
    "bitwise not and": "bitweises Nicht-Und", "Bits not set in both numbers": "Bits, die nicht in beiden Zahlen gesetzt sind",
    "bitwise not or": "bitweises Nicht-Oder", "Bits set in neither number": "Bits, die in keiner der Zahlen gesetzt sind",
    "bitwise not exclusive or": "bitweises exklusives Nicht-Oder", "Bits equal in both numbers": "Bits, die in beiden Zahlen gleich sind",
    "bitwise not": "bitweises Nicht", "Inverts every bit of the value": "Kehrt jedes Bit des Werts um",
    "Changes the sign of the value (two's complement)": "Wechselt das Vorzeichen des Werts (Zweierkomplement)",
    "Shifts the bits one place to the left": "Schiebt die Bits um eine Stelle nach links",
    "Shifts the bits one place to the right": "Schiebt die Bits um eine Stelle nach rechts",
    "Rotates the bits one place to the left": "Rotiert die Bits um eine Stelle nach links",
    "Rotates the bits one place to the right": "Rotiert die Bits um eine Stelle nach rechts",
    # quantities
    "Temperature": "Temperatur", "Distance (Length)": "Entfernung (Länge)", "Mass": "Masse",
    "Area": "Fläche", "Volume": "Volumen", "Pressure": "Druck", "Velocity": "Geschwindigkeit",
    "Acceleration": "Beschleunigung", "Force": "Kraft", "Energy": "Energie",
    "Fuel Consumption": "Kraftstoffverbrauch", "Flow (Liquid)": "Durchfluss (Flüssigkeit)",
    "Flow (Mass)": "Durchfluss (Masse)", "Torque": "Drehmoment", "Radioactivity": "Radioaktivität",
    "Angle": "Winkel", "Illumination (Brightness)": "Beleuchtungsstärke (Helligkeit)",
    "Luminous Intensity": "Lichtstärke", "Luminance": "Leuchtdichte", "Luminous Flux": "Lichtstrom",
    "Angular Velocity": "Winkelgeschwindigkeit", "Density": "Dichte", "Time": "Zeit",
    "Computer Storage": "Datenmenge", "Data Rate": "Datenrate",
    "Angular Acceleration": "Winkelbeschleunigung", "Viscosity (Dynamic)": "Viskosität (dynamisch)",
    "Viscosity (Kinematic)": "Viskosität (kinematisch)", "Electric Charge": "Elektrische Ladung",
    "Electric Current": "Elektrischer Strom", "Quantity": "Anzahl", "Magnetic Flux": "Magnetischer Fluss",
    "Magnetic Flux Density": "Magnetische Flussdichte",
    "Radiation Absorption": "Energiedosis", "Radiation Dose": "Äquivalentdosis",
    "Thermal Conductivity": "Wärmeleitfähigkeit", "Magnetic Field Strength": "Magnetische Feldstärke",
    # counts
    "Units": "Stück", "Pairs": "Paar", "Couples": "Paar (Couple)", "Dozens": "Dutzend",
    "Dozens (Baker's)": "Bäckerdutzend", "Dozens (Metric)": "Dutzend (metrisch)",
    "Scores": "Stiege", "Gross": "Gros", "Great Gross": "Großgros", "Braces": "Paar (Brace)",
    "Doubles": "Doppel", "Triples": "Tripel", "Trebles": "Dreier", "Centuries": "Hunderter (Century)",
    "Half Centuries": "Fünfziger", "Small Gross": "Kleingros", "Great Hundreds": "Großhundert",
    "Hundreds": "Hunderter", "Thousands": "Tausender", "Millions": "Millionen",
    "Billions": "Milliarden", "Trillions": "Billionen", "Quadrillions": "Billiarden",
    "Myriads": "Myriaden", "Lakh": "Lakh", "Crore": "Crore", "Halves": "Halbe",
    "Thirds": "Drittel", "Quarters": "Viertel",
    # odd unit names
    "Minutes (Audio CD)": "Minute (Audio-CD)",
    "Days (Solar - Mars)(Sols)": "Tag (Sonnentag – Mars) (Sol)",
    "Femtoesconds": "Femtosekunde",
    "Binary Radians (Brads)": "Binärradiant (Brad)",
    "Grade (%)": "Steigung (%)", "Grade (per mil)": "Steigung (Promille)",
    "Rise Ratio": "Steigungsverhältnis",
    "Inch (Tenths of)": "Zehntelzoll", "Inch (Sixteenths of)": "Sechzehntelzoll",
    "Inch (Thirty-Seconds of)": "Zweiunddreißigstelzoll",
    "Inch (Sixty-Fourths of)": "Vierundsechzigstelzoll", "Inch (Eighths of)": "Achtelzoll",
    "Inch (Thousandths of)": "Tausendstelzoll",
    "Sun to Mars": "Sonne–Mars", "Sun to Venus": "Sonne–Venus", "Sun to Mercury": "Sonne–Merkur",
    "Sun to Jupiter": "Sonne–Jupiter", "Sun to Saturn": "Sonne–Saturn",
    "Sun to Uranus": "Sonne–Uranus", "Sun to Neptune": "Sonne–Neptun",
    "Pieds de roi": "Pied du Roi", "Paris Points": "Pariser Punkt",
    "Football Field lengths (CAN)": "Footballfeldlänge (CAN)",
    "Ounces, Metric (25g)": "Unze, metrisch (25 g)", "Ounces, Metric (30g)": "Unze, metrisch (30 g)",
    "Fluid Ounces, Mertic (25ml)": "Flüssigunze, metrisch (25 ml)",
    "Fluid Ounces, Mertic (30ml)": "Flüssigunze, metrisch (30 ml)",
    "Ping Pong Ball": "Tischtennisball",
    "Tons (Long) Feet": "Long-Ton-Fuß", "Ton (Long) Feet": "Long-Ton-Fuß",
    "Ton (Short) Feet": "Short-Ton-Fuß", "Tonne Metres": "Tonnenmeter",
    "Noon-Day Sun Brightness": "Helligkeit der Mittagssonne",
    "Speed of Light": "Lichtgeschwindigkeit",
    "Speed of Sound (Dry Air at Sea Level)": "Schallgeschwindigkeit (trockene Luft auf Meereshöhe)",
    "Escape Velocity": "Fluchtgeschwindigkeit", "Gravity": "Erdbeschleunigung",
    "Temperature cannot be below -459.67 F": "Die Temperatur kann nicht unter -459,67 °F liegen",
    "Temperature cannot be below -273.15 C": "Die Temperatur kann nicht unter -273,15 °C liegen",
    "Temperature cannot be below 0 Kelvin": "Die Temperatur kann nicht unter 0 Kelvin liegen",
    "Temperature cannot be below 0 Rankine": "Die Temperatur kann nicht unter 0 Rankine liegen",
    "Kilometres per Litre cannot be 0!": "Kilometer pro Liter darf nicht 0 sein!",
    "Litres per 100 KM cannot be 0!": "Liter pro 100 km darf nicht 0 sein!",
    "Unknown unit '%s'": "Unbekannte Einheit '%s'",
    "Unknown quantity '%s'": "Unbekannte Größe '%s'",
    "Electrostatic Unit of Charge": "Elektrostatische Ladungseinheit",
    "Electromagnetic Unit of Charge": "Elektromagnetische Ladungseinheit",
    "Electromagnetic Unit of Current": "Elektromagnetische Stromeinheit",
    "Electrostatic Unit of Current": "Elektrostatische Stromeinheit",
    "Atomic Units of Force": "Atomare Krafteinheit",
    "Plasmatic Glucose (mmol/l)": "Plasmaglukose (mmol/l)",
    "Candle Power (Spherical)": "Kerzenstärke (sphärisch)",
    "British Thermal Units": "British Thermal Unit",
    "Tons of Refrigeration": "Kältetonne (TR)",
    "Binary Degrees": "Binärgrad", "Astronomical Units": "Astronomische Einheit",
    "Olympic Soccer Field Lengths": "Länge eines olympischen Fußballfelds",
    "Olympic Soccer Field Widths": "Breite eines olympischen Fußballfelds",
    "Olympic Soccer Fields": "Olympisches Fußballfeld", "Olympic Pools": "Olympiabecken",
    "Ping Pong Balls": "Tischtennisball", "Empire State Buildings": "Empire State Building",
    "Proton Mass Units": "Protonenmasse", "Electron Mass Units": "Elektronenmasse",
    "Neutron Mass Units": "Neutronenmasse", "Atomic Mass Units": "Atomare Masseneinheit",
    "Metre-Candles": "Meterkerze", "Foot-Candles": "Foot-Candle", "Foot-Lamberts": "Foot-Lambert",
    "BTUs (IT) Inches per Hour per Sq Foot Fahrenheit":
        "BTU (IT)-Zoll pro Stunde pro Quadratfuß-Fahrenheit",
    "Horsepower Seconds": "Pferdestärkensekunde", "Horsepower Minutes": "Pferdestärkenminute",
    "Horsepower Hours": "Pferdestärkenstunde",
    "Tons (Long)": "Long Ton", "Tons (Short)": "Short Ton",
    "Tons (Long) Force": "Long-Ton-Kraft", "Tons (Short) Force": "Short-Ton-Kraft",
    "Quarters (Short)": "Quarter (kurz)",
    "Ounces Force": "Unzenkraft", "Tonnes Force": "Tonnenkraft",
}

# Texts whose German depends on the module that uses them.
IN_CONTEXT = {("QORKIT_RS_UC", "Power"): "Leistung"}

# Unit words that mean another unit when a qualifier in brackets follows ("Centuries (Julian)").
BRACKETED = {"Centuries": "Jahrhundert", "Gravity": "Fallbeschleunigung"}

# Words of unit names: English (as the library writes them) -> German unit name.
WORDS = {
    # length
    "Metres": "Meter", "Metre": "Meter", "Meters": "Meter", "Microns": "Mikron", "Micron": "Mikron",
    "Angstroms": "Ångström", "Feet": "Fuß", "Foot": "Fuß", "Mils": "Mil", "Inches": "Zoll",
    "Inch": "Zoll", "Yards": "Yard", "Yard": "Yard", "Miles": "Meile", "Mile": "Meile",
    "Fathoms": "Faden", "Shackles": "Schäkel", "Chains": "Chain", "Rods": "Rute", "Links": "Link",
    "Hands": "Hand", "Thous": "Thou", "Poles": "Pole", "Perches": "Perch", "Furlongs": "Furlong",
    "Leagues": "League", "Parsecs": "Parsec", "Picas": "Pica", "Pouces": "Pouce",
    "Barleycorns": "Gerstenkorn", "Cubits": "Elle", "Spans": "Spanne", "Smoots": "Smoot",
    "Fermi": "Fermi", "Radii": "Radius", "Lí": "Lí", "Chi": "Chi", "Cùn": "Cùn",
    "Points": "Punkt", "Unciae": "Uncia", "Football": "Football", "Field": "Feld",
    "Fields": "Feld", "lengths": "Länge", "Lengths": "Länge", "Widths": "Breite",
    "Cricket": "Cricket", "Pitches": "Pitch", "Empire": "Empire", "State": "State",
    "Buildings": "Building", "Golf": "Golf", "Balls": "Ball", "Olympic": "olympisch",
    "Soccer": "Fußball", "Pools": "Schwimmbecken", "Ping": "Ping", "Pong": "Pong",
    "Planck": "Planck", "Bohr": "Bohr",
    # mass
    "Grams": "Gramm", "Gram": "Gramm", "Tonnes": "Tonne", "Pounds": "Pfund", "Pound": "Pfund",
    "Ounces": "Unze", "Ounce": "Unze", "Stones": "Stone", "Tons": "Ton", "Ton": "Ton",
    "Hundredweights": "Hundredweight", "Drams": "Dram", "Grains": "Gran", "Scruples": "Skrupel",
    "Carats": "Karat", "Pennyweights": "Pennyweight", "Slugs": "Slug", "Zentners": "Zentner",
    "Pfund": "Pfund", "Livre": "Livre", "Kips": "Kip", "Tolas": "Tola", "Taels": "Tael",
    "Momme": "Momme", "Berkovets": "Berkowez", "Pood": "Pud", "Funt": "Funt", "Lot": "Lot",
    "Zolotnik": "Solotnik", "Dolya": "Dolja", "Quintals": "Quintal", "Centners": "Zentner",
    "Libras": "Libra", "Masses": "Masse", "Mass": "Masse", "Dàn": "Dàn", "Jin": "Jin",
    "Liang": "Liang",
    # volume
    "Litres": "Liter", "Litre": "Liter", "Pints": "Pint", "Quarts": "Quart", "Gallons": "Gallone",
    "Gallon": "Gallone", "Megagallons": "Megagallone", "MegaGallons": "Megagallone",
    "Gills": "Gill", "Teaspoons": "Teelöffel", "Dessertspoons": "Dessertlöffel",
    "Tablespoons": "Esslöffel", "Pecks": "Peck", "Bushels": "Bushel", "Barrels": "Barrel",
    "Cups": "Tasse", "Congii": "Congius", "Acetabula": "Acetabulum", "Heminae": "Hemina",
    "Sextarii": "Sextarius", "Ligulae": "Ligula", "Urnae": "Urna", "Amphorae": "Amphore",
    "Modii": "Modius", "Super": "Super", "Board": "Board", "Kegs": "Fass", "Firkins": "Firkin",
    "Kilderkins": "Kilderkin", "Hogsheads": "Hogshead", "Drops": "Tropfen", "Volumes": "Volumen",
    "Sheng": "Sheng", "Acre": "Acre",
    # area
    "Hectares": "Hektar", "Ares": "Ar", "Acres": "Acre", "Roods": "Rood", "Dunams": "Dunam",
    "Tsubo": "Tsubo", "Tatami": "Tatami", "Sections": "Section", "Townships": "Township",
    "Pyong": "Pyeong", "Wah": "Wah", "Ngan": "Ngan", "Rai": "Rai", "Cents": "Cent",
    "Circular": "Circular", "Centiares": "Zentiar", "Deciares": "Deziar", "Decares": "Dekar",
    "Barns": "Barn", "Homesteads": "Homestead", "Areas": "Fläche", "Paper": "Papier",
    "A3": "A3", "A4": "A4", "A5": "A5", "Legal": "Legal", "Letter": "Letter",
    "Foolscap": "Foolscap", "Mu": "Mu", "Qing": "Qing",
    # pressure
    "Pascals": "Pascal", "Bars": "Bar", "Atmospheres": "Atmosphäre", "Torrs": "Torr",
    "PSI": "psi", "Dynes": "Dyn", "Dyne": "Dyn", "Newtons": "Newton", "Newton": "Newton",
    "Baryes": "Barye",
    # velocity, acceleration
    "Knots": "Knoten", "Mach": "Mach", "Galileos": "Galileo", "Gals": "Gal", "KPH": "km/h",
    "MPH": "mph",
    # force, energy, power
    "Force": "Kraft", "Poundals": "Poundal", "Poundal": "Poundal", "Kiloponds": "Kilopond",
    "Ponds": "Pond", "Crinals": "Crinal", "Funals": "Funal", "Sthènes": "Sthène",
    "Joules": "Joule", "Joule": "Joule", "Ergs": "Erg", "Calories": "Kalorie",
    "Therms": "Therm", "Thermies": "Thermie", "Watt": "Watt", "Watts": "Watt", "Abwatts": "Abwatt",
    "Electron": "Elektronen", "Volts": "Volt", "Volt": "Volt", "Horsepower": "Pferdestärke",
    "Pferdestärke": "Pferdestärke", "Cheval": "Cheval", "Vapeur": "Vapeur",
    "Refrigeration": "Kühlleistung", "BTUs": "BTU",
    # fuel, flow
    "KPL": "km/l", "MPG": "mpg", "Cusecs": "Cusec",
    # radioactivity, light, angles
    "Becquerels": "Becquerel", "Curies": "Curie", "Rutherfords": "Rutherford", "Lux": "Lux",
    "Lumens": "Lumen", "Candles": "Kerze", "Phots": "Phot", "Nox": "Nox", "Candelas": "Candela",
    "Candela": "Candela", "Hefner": "Hefner", "Violle": "Violle", "Steradian": "Steradiant",
    "Steradians": "Steradiant", "Bougies": "Bougie", "Carcels": "Carcel", "Lamberts": "Lambert",
    "Nits": "Nit", "Stilbs": "Stilb", "Apostilbs": "Apostilb", "Radians": "Radiant",
    "Degrees": "Grad", "Grads": "Gon", "Circles": "Vollkreis", "Semicircles": "Halbkreis",
    "Quadrants": "Quadrant", "Revolutions": "Umdrehung", "RPMs": "U/min", "RPM": "U/min",
    "Densities": "Dichte", "ppm": "ppm", "Binary": "binär", "Angular": "Winkel-",
    # viscosity, electricity, magnetism
    "Poises": "Poise", "Poiseuilles": "Poiseuille", "Reynolds": "Reyn", "Stokes": "Stokes",
    "Coulombs": "Coulomb", "Abcoulombs": "Abcoulomb", "Statcoulombs": "Statcoulomb",
    "Ampere": "Ampere", "Amperes": "Ampere", "Abamperes": "Abampere", "Statamperes": "Statampere",
    "Elementary": "Elementar", "Charges": "ladung", "Faradays": "Faraday", "Franklins": "Franklin",
    "Farad": "Farad", "Pascal": "Pascal", "Biots": "Biot", "Gilberts": "Gilbert", "Oersteds": "Oersted",
    "Webers": "Weber", "Maxwells": "Maxwell", "Lines": "Line", "Teslas": "Tesla", "Gauss": "Gauß",
    "Gammas": "Gamma", "Sieverts": "Sievert", "Rems": "rem", "Grays": "Gray", "Rads": "rad",
    "Milliamp": "Milliampere", "Hefner Units": "Hefnerkerze",
    # data
    "Bytes": "Byte", "Octets": "Oktett", "Bits": "Bit", "Nibbles": "Nibble", "Blocks": "Block",
    "Baud": "Baud",
    # temperature
    "Kelvin": "Kelvin", "Fahrenheit": "Fahrenheit", "Celsius": "Celsius", "Réaumur": "Réaumur",
    "Rankine": "Rankine", "Rømer": "Rømer", "Delisle": "Delisle",
    # time
    "Seconds": "Sekunde", "Second": "Sekunde", "Minutes": "Minute", "Minute": "Minute",
    "Hours": "Stunde", "Hour": "Stunde", "Days": "Tag", "Day": "Tag", "Weeks": "Woche",
    "Fortnights": "Zwei Wochen", "Months": "Monat", "Years": "Jahr", "Year": "Jahr",
    "Decades": "Jahrzehnt", "Lunations": "Lunation", "Light": "Licht",
    "Astronomical": "Astronomische", "Units": "Einheit", "Unit": "Einheit",
    # bodies of the solar system
    "Earth": "Erd", "Luna": "Mond", "Mars": "Mars", "Venus": "Venus", "Mercury": "Merkur",
    "Jupiter": "Jupiter", "Saturn": "Saturn", "Uranus": "Uranus", "Neptune": "Neptun",
    "Solar": "Sonnen", "Sun": "Sonne",
    # qualifiers
    "Nautical": "See", "Geographical": "Geografische", "Admiralty": "Admiralitäts",
    "Roman": "römische", "Scottish": "schottische", "Irish": "irische", "Fluid": "Flüssig",
    "Proton": "Protonen", "Neutron": "Neutronen", "Atomic": "Atomare", "British": "British",
    "Thermal": "Thermal", "Kilo-Electron": "Kiloelektronen", "Mega-Electron": "Megaelektronen",
    "Giga-Electron": "Gigaelektronen", "Sea": "Meer",
}

# Words that are part of a compound: "Light Years" -> "Lichtjahr", "Earth Radii" -> "Erdradius".
JOIN_FIRST = {"Light", "Earth", "Luna", "Solar", "Nautical", "Admiralty", "Fluid", "Proton",
              "Neutron", "Electron", "Elementary", "Kilo-Electron", "Mega-Electron",
              "Giga-Electron", "Soccer", "Sun", "Mars", "Venus", "Mercury", "Jupiter", "Saturn",
              "Uranus", "Neptune", "Planck", "Bohr", "Angular", "Football", "Golf",
              "Cricket", "Field", "Board", "Super", "Hefner", "Acre"}
# Units whose products are written as one word ("Newtonmeter", "Wattstunde").
CLOSED_PRODUCT = {"Newton", "Watt", "Kilowatt", "Ampere", "Volt", "Pascal", "Gramm", "Kilogramm",
                  "Dyn", "Farad", "Nanonewton", "Joule", "Milliampere", "Candela", "Pferdestärke"}

# Adjectives whose ending follows the German noun's gender.
ADJ = {"Astronomische", "Geografische", "römische", "schottische", "irische", "Atomare"}
NEUTER = {"Pfund", "Jahr", "Gramm", "Bit", "Byte", "Barrel", "Fass"}
MASCULINE = {"Fuß", "Zoll", "Tag", "Monat", "Faden", "Radius", "Punkt", "Ball"}

PREFIXES = [("Kibi", "Kibi"), ("Mebi", "Mebi"), ("Gibi", "Gibi"), ("Tebi", "Tebi"),
            ("Pebi", "Pebi"), ("Exbi", "Exbi"), ("Kilo", "Kilo"), ("Mega", "Mega"),
            ("Giga", "Giga"), ("Tera", "Tera"), ("Peta", "Peta"), ("Exa", "Exa"),
            ("Milli", "Milli"), ("Micro", "Mikro"), ("Nano", "Nano"), ("Pico", "Piko"),
            ("Femto", "Femto"), ("Centi", "Zenti"), ("Deci", "Dezi"), ("Deca", "Deka"),
            ("Hecto", "Hekto")]

PARENS = {
    "UK": "brit.", "US": "US", "Metric": "metrisch", "International": "international",
    "Tropical": "tropisch", "Sidereal": "siderisch", "Gregorian": "gregorianisch",
    "Julian": "julianisch", "Synodic": "synodisch", "Lunar": "Mondjahr", "Equatorial": "äquatorial",
    "Polar": "polar", "IT": "IT", "Th": "th", "Thermo-Chemical": "thermochemisch",
    "Mean": "mittel", "Short": "kurz", "Long": "lang", "Engineer": "Ingenieur",
    "US Survey": "US-Vermessung", "UK Land": "brit., Land", "UK Sea": "brit., See",
    "Common": "gewöhnlich", "Roman": "römisch", "Greek": "griechisch", "CAN": "CAN",
    "Telegraphic": "telegrafisch", "Chinese": "chinesisch", "Japanese": "japanisch",
    "Russian": "russisch", "Short Metric": "kurz, metrisch", "UK Dry": "brit., trocken",
    "US Dry": "US, trocken", "Oil": "Öl", "Dry": "trocken", "Liquid": "flüssig",
    "Metric Australia": "metrisch, Australien", "Metric Other": "metrisch, sonst",
    "US 12 Oz": "US, 12 oz", "Canada": "Kanada", "US Beer": "US-Bier", "UK Beer": "brit. Bier",
    "UK Wine": "brit. Wein", "US Wine": "US-Wein", "25 Litre": "25 Liter", "50 Litre": "50 Liter",
    "Beer": "Bier", "Water": "Wasser", "Thick Fluid": "zähe Flüssigkeit", "Korea": "Korea",
    "Taiwan": "Taiwan", "Thai": "Thailand", "India": "Indien", "Technical": "technisch",
    "Mechanical": "mechanisch", "Electrical": "elektrisch", "Spherical": "sphärisch",
    "Decimal": "dezimal", "Dynamic": "dynamisch", "Kinematic": "kinematisch",
    "Luna": "Mond", "Sun": "Sonne", "Mercury": "Merkur", "Neptune": "Neptun", "Lunar": "lunar",
    "12.5 Fathoms": "12,5 Faden", "15 Fathoms": "15 Faden", "365 Days": "365 Tage",
    "Roman Inches": "römischer Zoll", "Troy": "Troy", "Baker's": "Bäcker",
    "mAh": "mAh", "mAs": "mAs", "Sols": "Sol", "Audio CD": "Audio-CD",
}


def temperature(text):
    # "39°F" -> "39 °F", as German technical writing spaces the unit
    return re.sub(r"(\d)°([CF])", r"\1 °\2", text)


def paren(inner):
    inner = inner.strip()
    if inner in PARENS:
        return PARENS[inner]
    m = re.fullmatch(r"(\d+) days", inner)
    if m:
        return m.group(1) + " Tage"
    m = re.fullmatch(r"(Sidereal|Solar) - (\w+)", inner)
    if m:
        kind = "siderisch" if m.group(1) == "Sidereal" else "Sonnentag"
        body = PARENS.get(m.group(2), WORDS.get(m.group(2), m.group(2)))
        return kind + " – " + body
    m = re.fullmatch(r"Sidereal - (\w+)", inner)
    if re.fullmatch(r"[\d.]+°[CF]|\d+|[\d.]+ ?[a-z]+", inner):
        return temperature(inner)
    if inner in ("1930",):
        return inner
    if inner in WORDS:
        return WORDS[inner]
    raise KeyError("(" + inner + ")")


def word(w, missing):
    if w.isdigit():
        return w
    m = re.fullmatch(r"\((.+)\)", w)
    if m:
        try:
            return "(" + paren(m.group(1)) + ")"
        except KeyError:
            missing.add(w)
            return w
    if w in WORDS:
        return WORDS[w]
    for en, de in PREFIXES:
        if w.startswith(en) and len(w) > len(en):
            rest = w[len(en):]
            rest = rest[0].upper() + rest[1:]
            if rest in WORDS:
                base = WORDS[rest]
                return de + (base if base[:2].isupper() else base[0].lower() + base[1:])
    missing.add(w)
    CURRENT.append(w)
    return w


CURRENT = []


def inflect(adjective, noun):
    # The adjectives are stored in their feminine/plural form ("römische").
    if noun in NEUTER:
        return adjective + "s"
    if noun in MASCULINE:
        return adjective + "r"
    return adjective


def phrase(text, missing):
    """A unit name without " per " and without a trailing qualifier in brackets."""
    text = text.strip()
    if text in EXACT:
        return EXACT[text]
    # "Millimetres of Mercury at 0°C" and friends: columns of a fluid
    m = re.fullmatch(r"(.+?) [oO]f (Mercury|Water|Sea Water|Air|Head)(?: at (.+))?", text)
    if m:
        column = {"Mercury": "Quecksilbersäule", "Water": "Wassersäule",
                  "Sea Water": "Meerwassersäule", "Air": "Luftsäule", "Head": "Förderhöhe"}
        result = phrase(m.group(1), missing) + " " + column[m.group(2)]
        if m.group(3):
            result += " bei " + temperature(m.group(3))
        return result
    m = re.fullmatch(r"(.+) Squared", text)
    if m:
        return "Quadrat" + lower_first(phrase(m.group(1), missing))
    m = re.fullmatch(r"(Cubic|Square|Sq) (.+)", text)
    if m:
        return ("Kubik" if m.group(1) == "Cubic" else "Quadrat") + lower_first(phrase(m.group(2), missing))
    m = re.fullmatch(r"(.+) Force", text)
    if m:
        return phrase(m.group(1), missing) + "kraft" if " " not in m.group(1) else phrase(m.group(1), missing) + " Kraft"
    words = re.split(r"[ ]", text)
    if len(words) == 1 and "-" in text and text not in WORDS:
        # "Foot-Pounds", "Acre-Feet": hyphenated products stay hyphenated
        return "-".join(word(p, missing) for p in text.split("-"))
    out = []
    i = 0
    while i < len(words):
        w = words[i]
        de = word(w, missing)
        if de in ADJ and i + 1 < len(words):
            noun = phrase(" ".join(words[i + 1:]), missing)
            out.append(inflect(de, noun.split(" ")[0]) + " " + noun)
            return " ".join(out)
        out.append(de)
        i += 1
    return join_compound(words, out)


def lower_first(text):
    if len(text) > 1 and text[1].isupper():
        return text
    return text[0].lower() + text[1:]


def join_compound(words, german):
    if len(german) == 1:
        return german[0]
    result = german[0]
    for en, de, prev_en in zip(words[1:], german[1:], words[:-1]):
        prev_de = result.split(" ")[-1].split("-")[-1]
        if prev_en.isdigit():
            result = result + " " + de
        elif prev_en in JOIN_FIRST or prev_de.endswith("-"):
            result = result.rstrip("-") + lower_first(de)
        elif prev_de in CLOSED_PRODUCT or any(prev_de.endswith(p) for p in CLOSED_PRODUCT):
            result = result + lower_first(de)
        else:
            result = result + "-" + de
    return result


def translate(source, missing):
    if not source:
        return source  # an empty text stays empty
    if source in EXACT:
        return EXACT[source]
    text = source
    m = re.fullmatch(r"(.+?) \(([^()]+)\)", text)
    if m:
        try:
            base = BRACKETED.get(m.group(1)) or translate(m.group(1), missing)
            return base + " (" + paren(m.group(2)) + ")"
        except KeyError as e:
            missing.add(str(e))
            return source
    m = re.fullmatch(r"(.+?) [pP]er (.+)", text)
    if m:
        return translate(m.group(1), missing) + " pro " + translate(m.group(2), missing)
    m = re.fullmatch(r"Sun to (\w+)", text)
    if m:
        return "Sonne–" + WORDS[m.group(1)]
    return phrase(text, missing)


def main():
    template = Path(sys.argv[1]) if len(sys.argv) > 1 else HERE / "qorkit_en.ts"
    output = Path(sys.argv[2]) if len(sys.argv) > 2 else HERE / "qorkit_de.ts"
    tree = ET.parse(template)
    root = tree.getroot()
    root.set("language", "de_DE")
    missing = set()
    context_of = {m: c.find("name").text for c in root.iter("context") for m in c.iter("message")}
    for message in root.iter("message"):
        source = message.find("source").text or ""
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        del CURRENT[:]
        key = (context_of[message], source)
        translation.text = IN_CONTEXT.get(key) or translate(source, missing)
        if CURRENT:
            print(source, CURRENT, file=sys.stderr)
    if missing:
        sys.exit("untranslated words: " + ", ".join(sorted(missing)))
    ET.indent(tree, space="    ")
    with open(output, "wb") as f:
        f.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(f, encoding="utf-8", xml_declaration=False)
        f.write(b"\n")


if __name__ == "__main__":
    main()
