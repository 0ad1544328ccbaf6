<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="de_DE">
    <context>
        <name>QORKIT_Base</name>
        <message>
            <source>Division by zero</source>
            <extracomment>rsDivideByZero</extracomment>
            <translation>Division durch null</translation>
        </message>
        <message>
            <source>Invalid equation</source>
            <extracomment>rsInvalidEquation</extracomment>
            <translation>Ungültige Gleichung</translation>
        </message>
        <message>
            <source>Square root of a negative number</source>
            <extracomment>rsSqRootNeg</extracomment>
            <translation>Quadratwurzel aus einer negativen Zahl</translation>
        </message>
        <message>
            <source>M</source>
            <extracomment>rsMemoryHistoryPrefix</extracomment>
            <translation>M</translation>
        </message>
        <message>
            <source>Complex division by zero</source>
            <extracomment>rsCDivideByZero</extracomment>
            <translation>Komplexe Division durch null</translation>
        </message>
        <message>
            <source>Not defined for this value</source>
            <extracomment>rsNotDefinedForValue</extracomment>
            <translation>Für diesen Wert nicht definiert</translation>
        </message>
        <message>
            <source>Invalid date</source>
            <extracomment>rsInvalidDate</extracomment>
            <translation>Ungültiges Datum</translation>
        </message>
        <message>
            <source>Invalid latitude</source>
            <extracomment>rsInvalidLatitude</extracomment>
            <translation>Ungültige geografische Breite</translation>
        </message>
        <message>
            <source>Invalid longitude</source>
            <extracomment>rsInvalidLongitude</extracomment>
            <translation>Ungültige geografische Länge</translation>
        </message>
        <message>
            <source>N</source>
            <extracomment>rsNorthAbbr</extracomment>
            <translation>N</translation>
        </message>
        <message>
            <source>S</source>
            <extracomment>rsSouthAbbr</extracomment>
            <translation>S</translation>
        </message>
        <message>
            <source>E</source>
            <extracomment>rsEastAbbr</extracomment>
            <translation>O</translation>
        </message>
        <message>
            <source>W</source>
            <extracomment>rsWestAbbr</extracomment>
            <translation>W</translation>
        </message>
        <message>
            <source>Invalid floating point operation</source>
            <extracomment>rsInvalidOperation</extracomment>
            <translation>Ungültige Gleitkommaoperation</translation>
        </message>
        <message>
            <source>Floating point overflow</source>
            <extracomment>rsOverflow</extracomment>
            <translation>Gleitkommaüberlauf</translation>
        </message>
        <message>
            <source>Logarithm of zero or a negative number</source>
            <extracomment>rsLogNonPositive</extracomment>
            <translation>Logarithmus von null oder einer negativen Zahl</translation>
        </message>
        <message>
            <source>Argument out of the function's domain</source>
            <extracomment>rsOutOfDomain</extracomment>
            <translation>Argument außerhalb des Definitionsbereichs</translation>
        </message>
        <message>
            <source>'%s' is not a valid floating point value</source>
            <extracomment>rsInvalidFloat</extracomment>
            <translation>'%s' ist keine gültige Gleitkommazahl</translation>
        </message>
        <message>
            <source>'%s' is not a valid integer value</source>
            <extracomment>rsInvalidInteger</extracomment>
            <translation>'%s' ist keine gültige ganze Zahl</translation>
        </message>
        <message>
            <source>'%s' is not a valid hexadecimal value</source>
            <extracomment>rsInvalidHex</extracomment>
            <translation>'%s' ist keine gültige Hexadezimalzahl</translation>
        </message>
        <message>
            <source>'%s' is not a valid binary value</source>
            <extracomment>rsInvalidBinary</extracomment>
            <translation>'%s' ist keine gültige Binärzahl</translation>
        </message>
        <message>
            <source>'%s' is not a valid octal value</source>
            <extracomment>rsInvalidOctal</extracomment>
            <translation>'%s' ist keine gültige Oktalzahl</translation>
        </message>
        <message>
            <source>'%s' is not a valid angle</source>
            <extracomment>rsInvalidAngle</extracomment>
            <translation>'%s' ist kein gültiger Winkel</translation>
        </message>
        <message>
            <source>'%s' is out of the integer range</source>
            <extracomment>rsIntegerOverflow</extracomment>
            <translation>'%s' liegt außerhalb des Ganzzahlbereichs</translation>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_Calc</name>
        <message>
            <source>Error!</source>
            <extracomment>rsErrorMsg</extracomment>
            <translation>Fehler!</translation>
        </message>
        <message>
            <source>- - - - ERROR - - - -</source>
            <extracomment>rsPaperErrLine</extracomment>
            <translation>- - - - FEHLER - - - -</translation>
        </message>
        <message>
            <source>x ^ y</source>
            <extracomment>rsXpwrYPaper</extracomment>
            <translation>x ^ y</translation>
        </message>
        <message>
            <source>x ^ 1/y</source>
            <extracomment>rsXpwrInvYPaper</extracomment>
            <translation>x ^ 1/y</translation>
        </message>
        <message>
            <source>mod</source>
            <extracomment>rsFPModPaper, rsMODKey, rsMODHint</extracomment>
            <translation>mod</translation>
        </message>
        <message>
            <source>rem</source>
            <extracomment>rsFPRemPaper</extracomment>
            <translation>rest</translation>
        </message>
        <message>
            <source>div</source>
            <extracomment>rsFPDivPaper</extracomment>
            <translation>div</translation>
        </message>
        <message>
            <source>intdiv</source>
            <extracomment>rsFPIntDivPaper</extracomment>
            <translation>ganzdiv</translation>
        </message>
        <message>
            <source>sin</source>
            <extracomment>rsSinPaper, rsSinKey</extracomment>
            <translation>sin</translation>
        </message>
        <message>
            <source>arcsin</source>
            <extracomment>rsArcsinPaper</extracomment>
            <translation>arcsin</translation>
        </message>
        <message>
            <source>sinh</source>
            <extracomment>rsSinhPaper</extracomment>
            <translation>sinh</translation>
        </message>
        <message>
            <source>arsinh</source>
            <extracomment>rsArsinhPaper</extracomment>
            <translation>arsinh</translation>
        </message>
        <message>
            <source>cos</source>
            <extracomment>rsCosPaper, rsCosKey</extracomment>
            <translation>cos</translation>
        </message>
        <message>
            <source>arccos</source>
            <extracomment>rsArccosPaper</extracomment>
            <translation>arccos</translation>
        </message>
        <message>
            <source>cosh</source>
            <extracomment>rsCoshPaper</extracomment>
            <translation>cosh</translation>
        </message>
        <message>
            <source>arcosh</source>
            <extracomment>rsArcoshPaper</extracomment>
            <translation>arcosh</translation>
        </message>
        <message>
            <source>tan</source>
            <extracomment>rsTanPaper, rsTanKey</extracomment>
            <translation>tan</translation>
        </message>
        <message>
            <source>arctan</source>
            <extracomment>rsArctanPaper</extracomment>
            <translation>arctan</translation>
        </message>
        <message>
            <source>tanh</source>
            <extracomment>rsTanhPaper</extracomment>
            <translation>tanh</translation>
        </message>
        <message>
            <source>artanh</source>
            <extracomment>rsArtanhPaper</extracomment>
            <translation>artanh</translation>
        </message>
        <message>
            <source>log</source>
            <extracomment>rsLogPaper, rsLogKey</extracomment>
            <translation>lg</translation>
        </message>
        <message>
            <source>10^x</source>
            <extracomment>rs10toXPaper</extracomment>
            <translation>10^x</translation>
        </message>
        <message>
            <source>ln</source>
            <extracomment>rsLnPaper, rsLnKey</extracomment>
            <translation>ln</translation>
        </message>
        <message>
            <source>e^x</source>
            <extracomment>rsEtoXPaper</extracomment>
            <translation>e^x</translation>
        </message>
        <message>
            <source>log2</source>
            <extracomment>rsLog2Paper</extracomment>
            <translation>lb</translation>
        </message>
        <message>
            <source>2^x</source>
            <extracomment>rsInvLog2Paper</extracomment>
            <translation>2^x</translation>
        </message>
        <message>
            <source>sqrt</source>
            <extracomment>rsSqrtPaper</extracomment>
            <translation>Wurzel</translation>
        </message>
        <message>
            <source>x^2</source>
            <extracomment>rsSquarePaper</extracomment>
            <translation>x^2</translation>
        </message>
        <message>
            <source>abs</source>
            <extracomment>rsAbsPaper</extracomment>
            <translation>Betrag</translation>
        </message>
        <message>
            <source>floor</source>
            <extracomment>rsFloorPaper</extracomment>
            <translation>abrunden</translation>
        </message>
        <message>
            <source>ceiling</source>
            <extracomment>rsCeilingPaper</extracomment>
            <translation>aufrunden</translation>
        </message>
        <message>
            <source>sign</source>
            <extracomment>rsSignPaper</extracomment>
            <translation>sgn</translation>
        </message>
        <message>
            <source>gamma</source>
            <extracomment>rsGammaPaper</extracomment>
            <translation>Gamma</translation>
        </message>
        <message>
            <source>ln gamma</source>
            <extracomment>rsLnGammaPaper</extracomment>
            <translation>ln Gamma</translation>
        </message>
        <message>
            <source>1/x</source>
            <extracomment>rsInvertPaper</extracomment>
            <translation>1/x</translation>
        </message>
        <message>
            <source>round</source>
            <extracomment>rsRoundPaper</extracomment>
            <translation>runden</translation>
        </message>
        <message>
            <source>deg</source>
            <extracomment>rsDegAbbrev</extracomment>
            <translation>deg</translation>
        </message>
        <message>
            <source>rad</source>
            <extracomment>rsRadAbbrev</extracomment>
            <translation>rad</translation>
        </message>
        <message>
            <source>gra</source>
            <extracomment>rsGraAbbrev</extracomment>
            <translation>gon</translation>
        </message>
        <message>
            <source>M+</source>
            <extracomment>rsMemAddPaper, rsMAddKey</extracomment>
            <translation>M+</translation>
        </message>
        <message>
            <source>M-</source>
            <extracomment>rsMemSubPaper, rsMSubtractKey</extracomment>
            <translation>M-</translation>
        </message>
        <message>
            <source>MC</source>
            <extracomment>rsMemClrPaper, rsMCKey</extracomment>
            <translation>MC</translation>
        </message>
        <message>
            <source>MR</source>
            <extracomment>rsMemRecPaper, rsMRKey</extracomment>
            <translation>MR</translation>
        </message>
        <message>
            <source>- - - - - - - - - - -</source>
            <extracomment>rsPaperLine</extracomment>
            <translation>- - - - - - - - - - -</translation>
        </message>
        <message>
            <source>Unknown Function</source>
            <extracomment>rsUnknownFunction</extracomment>
            <translation>Unbekannte Funktion</translation>
        </message>
        <message>
            <source>MOD</source>
            <extracomment>rsMODPaper</extracomment>
            <translation>MOD</translation>
        </message>
        <message>
            <source>AND</source>
            <extracomment>rsANDPaper</extracomment>
            <translation>AND</translation>
        </message>
        <message>
            <source>OR</source>
            <extracomment>rsORPaper</extracomment>
            <translation>OR</translation>
        </message>
        <message>
            <source>XOR</source>
            <extracomment>rsXORPaper</extracomment>
            <translation>XOR</translation>
        </message>
        <message>
            <source>NAND</source>
            <extracomment>rsNANDPaper</extracomment>
            <translation>NAND</translation>
        </message>
        <message>
            <source>NOR</source>
            <extracomment>rsNORPaper</extracomment>
            <translation>NOR</translation>
        </message>
        <message>
            <source>XNOR</source>
            <extracomment>rsXNORPaper</extracomment>
            <translation>XNOR</translation>
        </message>
        <message>
            <source>NOT</source>
            <extracomment>rsNOTPaper</extracomment>
            <translation>NOT</translation>
        </message>
        <message>
            <source>NEG</source>
            <extracomment>rsNEGPaper</extracomment>
            <translation>NEG</translation>
        </message>
        <message>
            <source>SHL</source>
            <extracomment>rsSHLPaper</extracomment>
            <translation>SHL</translation>
        </message>
        <message>
            <source>SHR</source>
            <extracomment>rsSHRPaper</extracomment>
            <translation>SHR</translation>
        </message>
        <message>
            <source>ROL</source>
            <extracomment>rsROLPaper</extracomment>
            <translation>ROL</translation>
        </message>
        <message>
            <source>ROR</source>
            <extracomment>rsRORPaper</extracomment>
            <translation>ROR</translation>
        </message>
        <message>
            <source>Bin</source>
            <extracomment>rsComboBin</extracomment>
            <translation>Bin</translation>
        </message>
        <message>
            <source>Dec</source>
            <extracomment>rsComboDec</extracomment>
            <translation>Dez</translation>
        </message>
        <message>
            <source>Hex</source>
            <extracomment>rsComboHex</extracomment>
            <translation>Hex</translation>
        </message>
        <message>
            <source>Oct</source>
            <extracomment>rsComboOct</extracomment>
            <translation>Okt</translation>
        </message>
        <message>
            <source>8 bits</source>
            <extracomment>rsCombo8Bits</extracomment>
            <translation>8 Bit</translation>
        </message>
        <message>
            <source>16 bits</source>
            <extracomment>rsCombo16Bits</extracomment>
            <translation>16 Bit</translation>
        </message>
        <message>
            <source>32 bits</source>
            <extracomment>rsCombo32Bits</extracomment>
            <translation>32 Bit</translation>
        </message>
        <message>
            <source>64 bits</source>
            <extracomment>rsCombo64Bits</extracomment>
            <translation>64 Bit</translation>
        </message>
        <message>
            <source>No Spacing</source>
            <extracomment>rsSpacingNone</extracomment>
            <translation>Ohne Abstand</translation>
        </message>
        <message>
            <source>Byte Spacing</source>
            <extracomment>rsSpacingByte</extracomment>
            <translation>Abstand je Byte</translation>
        </message>
        <message>
            <source>Word Spacing</source>
            <extracomment>rsSpacingWord</extracomment>
            <translation>Abstand je Word</translation>
        </message>
        <message>
            <source>DWord Spacing</source>
            <extracomment>rsSpacingDWord</extracomment>
            <translation>Abstand je DWord</translation>
        </message>
        <message>
            <source>Clear</source>
            <extracomment>rsChangeClear, rsCHint</extracomment>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Truncate</source>
            <extracomment>rsChangeTruncate</extracomment>
            <translation>Abschneiden</translation>
        </message>
        <message>
            <source>Extend</source>
            <extracomment>rsChangeExtend</extracomment>
            <translation>Erweitern</translation>
        </message>
        <message>
            <source>Calculator</source>
            <extracomment>rsCalculator</extracomment>
            <translation>Rechner</translation>
        </message>
        <message>
            <source>inv</source>
            <extracomment>rsInvAbbrev</extracomment>
            <translation>inv</translation>
        </message>
        <message>
            <source>hyp</source>
            <extracomment>rsHypAbbrev</extracomment>
            <translation>hyp</translation>
        </message>
        <message>
            <source>lg2</source>
            <extracomment>rsLg2Key</extracomment>
            <translation>lb</translation>
        </message>
        <message>
            <source>exp</source>
            <extracomment>rsExpKey</extracomment>
            <translation>exp</translation>
        </message>
        <message>
            <source>AC</source>
            <extracomment>rsACKey</extracomment>
            <translation>AC</translation>
        </message>
        <message>
            <source>C</source>
            <extracomment>rsCKey</extracomment>
            <translation>C</translation>
        </message>
        <message>
            <source>Cl</source>
            <extracomment>rsClKey</extracomment>
            <translation>Lö</translation>
        </message>
        <message>
            <source>and</source>
            <extracomment>rsANDKey, rsANDHint</extracomment>
            <translation>and</translation>
        </message>
        <message>
            <source>or</source>
            <extracomment>rsORKey, rsORHint</extracomment>
            <translation>or</translation>
        </message>
        <message>
            <source>xor</source>
            <extracomment>rsXORKey</extracomment>
            <translation>xor</translation>
        </message>
        <message>
            <source>nand</source>
            <extracomment>rsNANDKey</extracomment>
            <translation>nand</translation>
        </message>
        <message>
            <source>nor</source>
            <extracomment>rsNORKey</extracomment>
            <translation>nor</translation>
        </message>
        <message>
            <source>xnor</source>
            <extracomment>rsXNORKey</extracomment>
            <translation>xnor</translation>
        </message>
        <message>
            <source>not</source>
            <extracomment>rsNOTKey, rsNOTHint</extracomment>
            <translation>not</translation>
        </message>
        <message>
            <source>neg</source>
            <extracomment>rsNEGKey</extracomment>
            <translation>neg</translation>
        </message>
        <message>
            <source>shl</source>
            <extracomment>rsSHLKey</extracomment>
            <translation>shl</translation>
        </message>
        <message>
            <source>shr</source>
            <extracomment>rsSHRKey</extracomment>
            <translation>shr</translation>
        </message>
        <message>
            <source>rol</source>
            <extracomment>rsROLKey</extracomment>
            <translation>rol</translation>
        </message>
        <message>
            <source>ror</source>
            <extracomment>rsRORKey</extracomment>
            <translation>ror</translation>
        </message>
        <message>
            <source>Change Sign</source>
            <extracomment>rsChangeSignHint</extracomment>
            <translation>Vorzeichen wechseln</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>rsAddHint</extracomment>
            <translation>Addieren</translation>
        </message>
        <message>
            <source>Subtract</source>
            <extracomment>rsSubtractHint</extracomment>
            <translation>Subtrahieren</translation>
        </message>
        <message>
            <source>Multiply</source>
            <extracomment>rsMultiplyHint</extracomment>
            <translation>Multiplizieren</translation>
        </message>
        <message>
            <source>Divide</source>
            <extracomment>rsDivideHint</extracomment>
            <translation>Dividieren</translation>
        </message>
        <message>
            <source>BackSpace</source>
            <extracomment>rsBackSpaceHint</extracomment>
            <translation>Rückschritt</translation>
        </message>
        <message>
            <source>All Clear</source>
            <extracomment>rsACHint</extracomment>
            <translation>Alles löschen</translation>
        </message>
        <message>
            <source>Clear Memory</source>
            <extracomment>rsMCHint</extracomment>
            <translation>Speicher löschen</translation>
        </message>
        <message>
            <source>Add To Memory</source>
            <extracomment>rsMAddHint</extracomment>
            <translation>Zum Speicher addieren</translation>
        </message>
        <message>
            <source>Subtract From Memory</source>
            <extracomment>rsMSubtractHint</extracomment>
            <translation>Vom Speicher subtrahieren</translation>
        </message>
        <message>
            <source>Memory Recall</source>
            <extracomment>rsMRHint</extracomment>
            <translation>Speicher abrufen</translation>
        </message>
        <message>
            <source>Raised to the Power of</source>
            <extracomment>rsPowerHint</extracomment>
            <translation>Hoch (Potenz)</translation>
        </message>
        <message>
            <source>Pi (Constant)</source>
            <extracomment>rsPiHint</extracomment>
            <translation>Pi (Konstante)</translation>
        </message>
        <message>
            <source>Natural Constant</source>
            <extracomment>rsEHint</extracomment>
            <translation>Eulersche Zahl</translation>
        </message>
        <message>
            <source>Squares the Value</source>
            <extracomment>rsSquareHint</extracomment>
            <translation>Quadriert den Wert</translation>
        </message>
        <message>
            <source>Square Roots the Value</source>
            <extracomment>rsSqRootHint</extracomment>
            <translation>Zieht die Quadratwurzel</translation>
        </message>
        <message>
            <source>Inverts the Value</source>
            <extracomment>rsInvertHint</extracomment>
            <translation>Kehrwert</translation>
        </message>
        <message>
            <source>Logarithm to Base 10</source>
            <extracomment>rsLogHint</extracomment>
            <translation>Logarithmus zur Basis 10</translation>
        </message>
        <message>
            <source>Natural Logarithm</source>
            <extracomment>rsLnHint</extracomment>
            <translation>Natürlicher Logarithmus</translation>
        </message>
        <message>
            <source>Logarithm to Base 2</source>
            <extracomment>rsLg2Hint</extracomment>
            <translation>Logarithmus zur Basis 2</translation>
        </message>
        <message>
            <source>Sine of Value</source>
            <extracomment>rsSinHint</extracomment>
            <translation>Sinus des Werts</translation>
        </message>
        <message>
            <source>Cosine of Value</source>
            <extracomment>rsCosHint</extracomment>
            <translation>Kosinus des Werts</translation>
        </message>
        <message>
            <source>Tangent of Value</source>
            <extracomment>rsTanHint</extracomment>
            <translation>Tangens des Werts</translation>
        </message>
        <message>
            <source>Inverse Operation</source>
            <extracomment>rsInvHint</extracomment>
            <translation>Umkehrfunktion</translation>
        </message>
        <message>
            <source>Hyperbolic Function</source>
            <extracomment>rsHypHint</extracomment>
            <translation>Hyperbelfunktion</translation>
        </message>
        <message>
            <source>x Percent of y</source>
            <extracomment>rsPercentHint</extracomment>
            <translation>x Prozent von y</translation>
        </message>
        <message>
            <source>Radians or Degrees</source>
            <extracomment>rsRadHint</extracomment>
            <translation>Bogenmaß oder Grad</translation>
        </message>
        <message>
            <source>exclusive or</source>
            <extracomment>rsXORHint</extracomment>
            <translation>exklusives Oder</translation>
        </message>
        <message>
            <source>not and</source>
            <extracomment>rsNANDHint</extracomment>
            <translation>nicht und</translation>
        </message>
        <message>
            <source>not or</source>
            <extracomment>rsNORHint</extracomment>
            <translation>nicht oder</translation>
        </message>
        <message>
            <source>not exclusive or</source>
            <extracomment>rsXNORHint</extracomment>
            <translation>nicht exklusives Oder</translation>
        </message>
        <message>
            <source>negate</source>
            <extracomment>rsNEGHint</extracomment>
            <translation>negieren</translation>
        </message>
        <message>
            <source>shift left</source>
            <extracomment>rsSHLHint</extracomment>
            <translation>nach links schieben</translation>
        </message>
        <message>
            <source>shift right</source>
            <extracomment>rsSHRHint</extracomment>
            <translation>nach rechts schieben</translation>
        </message>
        <message>
            <source>rotate left</source>
            <extracomment>rsROLHint</extracomment>
            <translation>nach links rotieren</translation>
        </message>
        <message>
            <source>rotate right</source>
            <extracomment>rsRORHint</extracomment>
            <translation>nach rechts rotieren</translation>
        </message>
        <message>
            <source>choose desired base</source>
            <extracomment>rsBaseHint</extracomment>
            <translation>Zahlenbasis wählen</translation>
        </message>
        <message>
            <source>choose desired bit length</source>
            <extracomment>rsBitsHint</extracomment>
            <translation>Bitlänge wählen</translation>
        </message>
        <message>
            <source>Exit and Transfer Result</source>
            <extracomment>rsExitHint</extracomment>
            <translation>Beenden und Ergebnis übernehmen</translation>
        </message>
        <message>
            <source>Exit and Do Not Transfer Result</source>
            <extracomment>rsCancelHint</extracomment>
            <translation>Beenden ohne Ergebnis zu übernehmen</translation>
        </message>
        <message>
            <source>Copy Value to ClipBoard</source>
            <extracomment>rsCopyHint</extracomment>
            <translation>Wert in die Zwischenablage kopieren</translation>
        </message>
        <message>
            <source>Paste Value from Clipboard</source>
            <extracomment>rsPasteHint</extracomment>
            <translation>Wert aus der Zwischenablage einfügen</translation>
        </message>
        <message>
            <source>Value</source>
            <extracomment>rsValueHint</extracomment>
            <translation>Wert</translation>
        </message>
        <message>
            <source>Memory</source>
            <extracomment>rsMemoryHint</extracomment>
            <translation>Speicher</translation>
        </message>
        <message>
            <source>Decimal Places</source>
            <extracomment>rsDecimalsHint</extracomment>
            <translation>Nachkommastellen</translation>
        </message>
        <message>
            <source>The currency symbol can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat1</extracomment>
            <translation>Das Währungssymbol lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet</translation>
        </message>
        <message>
            <source>The currency format can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat2</extracomment>
            <translation>Das Währungsformat lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet</translation>
        </message>
        <message>
            <source>The negative currency format can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat3</extracomment>
            <translation>Das negative Währungsformat lässt sich nur ändern, wenn das Feld sein eigenes Währungsformat verwendet</translation>
        </message>
        <message>
            <source>Cannot show more than </source>
            <extracomment>rsCannot</extracomment>
            <translation>Es können nicht mehr als </translation>
        </message>
        <message>
            <source> decimal places</source>
            <extracomment>rsDecimalPlaces</extracomment>
            <translation> Nachkommastellen angezeigt werden</translation>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_UC</name>
        <message>
            <source>Temperature</source>
            <extracomment>rsName_ectTemperature</extracomment>
            <translation>Temperatur</translation>
        </message>
        <message>
            <source>Distance (Length)</source>
            <extracomment>rsName_ectDistance</extracomment>
            <translation>Entfernung (Länge)</translation>
        </message>
        <message>
            <source>Mass</source>
            <extracomment>rsName_ectMass</extracomment>
            <translation>Masse</translation>
        </message>
        <message>
            <source>Area</source>
            <extracomment>rsName_ectArea</extracomment>
            <translation>Fläche</translation>
        </message>
        <message>
            <source>Volume</source>
            <extracomment>rsName_ectVolume</extracomment>
            <translation>Volumen</translation>
        </message>
        <message>
            <source>Pressure</source>
            <extracomment>rsName_ectPressure</extracomment>
            <translation>Druck</translation>
        </message>
        <message>
            <source>Velocity</source>
            <extracomment>rsName_ectVelocity</extracomment>
            <translation>Geschwindigkeit</translation>
        </message>
        <message>
            <source>Acceleration</source>
            <extracomment>rsName_ectAcceleration</extracomment>
            <translation>Beschleunigung</translation>
        </message>
        <message>
            <source>Force</source>
            <extracomment>rsName_ectForce</extracomment>
            <translation>Kraft</translation>
        </message>
        <message>
            <source>Energy</source>
            <extracomment>rsName_ectEnergy</extracomment>
            <translation>Energie</translation>
        </message>
        <message>
            <source>Power</source>
            <extracomment>rsName_ectPowerConv</extracomment>
            <translation>Leistung</translation>
        </message>
        <message>
            <source>Fuel Consumption</source>
            <extracomment>rsName_ectFuelConsumption</extracomment>
            <translation>Kraftstoffverbrauch</translation>
        </message>
        <message>
            <source>Flow (Liquid)</source>
            <extracomment>rsName_ectFlow</extracomment>
            <translation>Durchfluss (Flüssigkeit)</translation>
        </message>
        <message>
            <source>Flow (Mass)</source>
            <extracomment>rsName_ectFlowMass</extracomment>
            <translation>Durchfluss (Masse)</translation>
        </message>
        <message>
            <source>Torque</source>
            <extracomment>rsName_ectTorque</extracomment>
            <translation>Drehmoment</translation>
        </message>
        <message>
            <source>Radioactivity</source>
            <extracomment>rsName_ectRadioactivity</extracomment>
            <translation>Radioaktivität</translation>
        </message>
        <message>
            <source>Angle</source>
            <extracomment>rsName_ectAngles</extracomment>
            <translation>Winkel</translation>
        </message>
        <message>
            <source>Illumination (Brightness)</source>
            <extracomment>rsName_ectIllumination</extracomment>
            <translation>Beleuchtungsstärke (Helligkeit)</translation>
        </message>
        <message>
            <source>Luminous Intensity</source>
            <extracomment>rsName_ectLuminous</extracomment>
            <translation>Lichtstärke</translation>
        </message>
        <message>
            <source>Luminance</source>
            <extracomment>rsName_ectLuminance</extracomment>
            <translation>Leuchtdichte</translation>
        </message>
        <message>
            <source>Luminous Flux</source>
            <extracomment>rsName_ectLumFlux</extracomment>
            <translation>Lichtstrom</translation>
        </message>
        <message>
            <source>Angular Velocity</source>
            <extracomment>rsName_ectAngVel</extracomment>
            <translation>Winkelgeschwindigkeit</translation>
        </message>
        <message>
            <source>Density</source>
            <extracomment>rsName_ectDensity</extracomment>
            <translation>Dichte</translation>
        </message>
        <message>
            <source>Time</source>
            <extracomment>rsName_ectTime</extracomment>
            <translation>Zeit</translation>
        </message>
        <message>
            <source>Computer Storage</source>
            <extracomment>rsName_ectComputer</extracomment>
            <translation>Datenmenge</translation>
        </message>
        <message>
            <source>Data Rate</source>
            <extracomment>rsName_ectDataRate</extracomment>
            <translation>Datenrate</translation>
        </message>
        <message>
            <source>Angular Acceleration</source>
            <extracomment>rsName_ectAngAccel</extracomment>
            <translation>Winkelbeschleunigung</translation>
        </message>
        <message>
            <source>Viscosity (Dynamic)</source>
            <extracomment>rsName_ectVisDyn</extracomment>
            <translation>Viskosität (dynamisch)</translation>
        </message>
        <message>
            <source>Viscosity (Kinematic)</source>
            <extracomment>rsName_ectVisKin</extracomment>
            <translation>Viskosität (kinematisch)</translation>
        </message>
        <message>
            <source>Electric Charge</source>
            <extracomment>rsName_ectElCharge</extracomment>
            <translation>Elektrische Ladung</translation>
        </message>
        <message>
            <source>Electric Current</source>
            <extracomment>rsName_ectCurrent</extracomment>
            <translation>Elektrischer Strom</translation>
        </message>
        <message>
            <source>Quantity</source>
            <extracomment>rsName_ectQuantity</extracomment>
            <translation>Anzahl</translation>
        </message>
        <message>
            <source>Magnetic Flux</source>
            <extracomment>rsName_ectMagneticFlux</extracomment>
            <translation>Magnetischer Fluss</translation>
        </message>
        <message>
            <source>Magnetic Flux Density</source>
            <extracomment>rsName_ectMagneticFluxDensity</extracomment>
            <translation>Magnetische Flussdichte</translation>
        </message>
        <message>
            <source>Radiation Absorption</source>
            <extracomment>rsName_ectRadiationAbsorption</extracomment>
            <translation>Energiedosis</translation>
        </message>
        <message>
            <source>Radiation Dose</source>
            <extracomment>rsName_ectRadiationDose</extracomment>
            <translation>Äquivalentdosis</translation>
        </message>
        <message>
            <source>Thermal Conductivity</source>
            <extracomment>rsName_ectThermalConductivity</extracomment>
            <translation>Wärmeleitfähigkeit</translation>
        </message>
        <message>
            <source>Magnetic Field Strength</source>
            <extracomment>rsName_ectMagneticFieldStrength</extracomment>
            <translation>Magnetische Feldstärke</translation>
        </message>
        <message>
            <source>Units</source>
            <extracomment>rsName_eqtUnits</extracomment>
            <translation>Stück</translation>
        </message>
        <message>
            <source>Pairs</source>
            <extracomment>rsName_eqtPairs</extracomment>
            <translation>Paar</translation>
        </message>
        <message>
            <source>Couples</source>
            <extracomment>rsName_eqtCouples</extracomment>
            <translation>Paar (Couple)</translation>
        </message>
        <message>
            <source>Dozens</source>
            <extracomment>rsName_eqtDozens</extracomment>
            <translation>Dutzend</translation>
        </message>
        <message>
            <source>Dozens (Baker's)</source>
            <extracomment>rsName_eqtDozensBakers</extracomment>
            <translation>Bäckerdutzend</translation>
        </message>
        <message>
            <source>Dozens (Metric)</source>
            <extracomment>rsName_eqtDozensMetric</extracomment>
            <translation>Dutzend (metrisch)</translation>
        </message>
        <message>
            <source>Scores</source>
            <extracomment>rsName_eqtScores</extracomment>
            <translation>Stiege</translation>
        </message>
        <message>
            <source>Gross</source>
            <extracomment>rsName_eqtGross</extracomment>
            <translation>Gros</translation>
        </message>
        <message>
            <source>Great Gross</source>
            <extracomment>rsName_eqtGreatGross</extracomment>
            <translation>Großgros</translation>
        </message>
        <message>
            <source>Braces</source>
            <extracomment>rsName_eqtBraces</extracomment>
            <translation>Paar (Brace)</translation>
        </message>
        <message>
            <source>Doubles</source>
            <extracomment>rsName_eqtDoubles</extracomment>
            <translation>Doppel</translation>
        </message>
        <message>
            <source>Triples</source>
            <extracomment>rsName_eqtTriples</extracomment>
            <translation>Tripel</translation>
        </message>
        <message>
            <source>Trebles</source>
            <extracomment>rsName_eqtTrebles</extracomment>
            <translation>Dreier</translation>
        </message>
        <message>
            <source>Centuries</source>
            <extracomment>rsName_eqtCenturies</extracomment>
            <translation>Hunderter (Century)</translation>
        </message>
        <message>
            <source>Half Centuries</source>
            <extracomment>rsName_eqtHalfCenturies</extracomment>
            <translation>Fünfziger</translation>
        </message>
        <message>
            <source>Small Gross</source>
            <extracomment>rsName_eqtSmallGross</extracomment>
            <translation>Kleingros</translation>
        </message>
        <message>
            <source>Great Hundreds</source>
            <extracomment>rsName_eqtGreatHundred</extracomment>
            <translation>Großhundert</translation>
        </message>
        <message>
            <source>Hundreds</source>
            <extracomment>rsName_eqtHundreds</extracomment>
            <translation>Hunderter</translation>
        </message>
        <message>
            <source>Thousands</source>
            <extracomment>rsName_eqtThousands</extracomment>
            <translation>Tausender</translation>
        </message>
        <message>
            <source>Millions</source>
            <extracomment>rsName_eqtMillions</extracomment>
            <translation>Millionen</translation>
        </message>
        <message>
            <source>Billions</source>
            <extracomment>rsName_eqtBillions</extracomment>
            <translation>Milliarden</translation>
        </message>
        <message>
            <source>Trillions</source>
            <extracomment>rsName_eqtTrillions</extracomment>
            <translation>Billionen</translation>
        </message>
        <message>
            <source>Quadrillions</source>
            <extracomment>rsName_eqtQuadrillions</extracomment>
            <translation>Billiarden</translation>
        </message>
        <message>
            <source>Myriads</source>
            <extracomment>rsName_eqtMyriads</extracomment>
            <translation>Myriaden</translation>
        </message>
        <message>
            <source>Lakh</source>
            <extracomment>rsName_eqtLakh</extracomment>
            <translation>Lakh</translation>
        </message>
        <message>
            <source>Crore</source>
            <extracomment>rsName_eqtCrore</extracomment>
            <translation>Crore</translation>
        </message>
        <message>
            <source>Halves</source>
            <extracomment>rsName_eqtHalves</extracomment>
            <translation>Halbe</translation>
        </message>
        <message>
            <source>Thirds</source>
            <extracomment>rsName_eqtThirds</extracomment>
            <translation>Drittel</translation>
        </message>
        <message>
            <source>Quarters</source>
            <extracomment>rsName_eqtQuarters, rsName_emtQuarters</extracomment>
            <translation>Viertel</translation>
        </message>
        <message>
            <source>Bytes</source>
            <extracomment>rsName_ectBytes</extracomment>
            <translation>Byte</translation>
        </message>
        <message>
            <source>Octets</source>
            <extracomment>rsName_ectOctets</extracomment>
            <translation>Oktett</translation>
        </message>
        <message>
            <source>Bits</source>
            <extracomment>rsName_ectBits</extracomment>
            <translation>Bit</translation>
        </message>
        <message>
            <source>Nibbles</source>
            <extracomment>rsName_ectNibbles</extracomment>
            <translation>Nibble</translation>
        </message>
        <message>
            <source>Blocks</source>
            <extracomment>rsName_ectBlocks</extracomment>
            <translation>Block</translation>
        </message>
        <message>
            <source>Kilobytes (2)</source>
            <extracomment>rsName_ectKiloBytes</extracomment>
            <translation>Kilobyte (2)</translation>
        </message>
        <message>
            <source>Megabytes (2)</source>
            <extracomment>rsName_ectMegaBytes</extracomment>
            <translation>Megabyte (2)</translation>
        </message>
        <message>
            <source>Gigabytes (2)</source>
            <extracomment>rsName_ectGigaBytes</extracomment>
            <translation>Gigabyte (2)</translation>
        </message>
        <message>
            <source>Terabytes (2)</source>
            <extracomment>rsName_ectTeraBytes</extracomment>
            <translation>Terabyte (2)</translation>
        </message>
        <message>
            <source>Petabytes (2)</source>
            <extracomment>rsName_ectPetaBytes</extracomment>
            <translation>Petabyte (2)</translation>
        </message>
        <message>
            <source>Exabytes (2)</source>
            <extracomment>rsName_ectExaBytes</extracomment>
            <translation>Exabyte (2)</translation>
        </message>
        <message>
            <source>Kibibytes</source>
            <extracomment>rsName_ectKibiBytes</extracomment>
            <translation>Kibibyte</translation>
        </message>
        <message>
            <source>Mebibytes</source>
            <extracomment>rsName_ectMebiBytes</extracomment>
            <translation>Mebibyte</translation>
        </message>
        <message>
            <source>Gibibytes</source>
            <extracomment>rsName_ectGibiBytes</extracomment>
            <translation>Gibibyte</translation>
        </message>
        <message>
            <source>Tebibytes</source>
            <extracomment>rsName_ectTebiBytes</extracomment>
            <translation>Tebibyte</translation>
        </message>
        <message>
            <source>Pebibytes</source>
            <extracomment>rsName_ectPebiBytes</extracomment>
            <translation>Pebibyte</translation>
        </message>
        <message>
            <source>Exbibytes</source>
            <extracomment>rsName_ectExbiBytes</extracomment>
            <translation>Exbibyte</translation>
        </message>
        <message>
            <source>Kilobytes (10)</source>
            <extracomment>rsName_ectKiloBytes10</extracomment>
            <translation>Kilobyte (10)</translation>
        </message>
        <message>
            <source>Megabytes (10)</source>
            <extracomment>rsName_ectMegaBytes10</extracomment>
            <translation>Megabyte (10)</translation>
        </message>
        <message>
            <source>Gigabytes (10)</source>
            <extracomment>rsName_ectGigaBytes10</extracomment>
            <translation>Gigabyte (10)</translation>
        </message>
        <message>
            <source>Terabytes (10)</source>
            <extracomment>rsName_ectTeraBytes10</extracomment>
            <translation>Terabyte (10)</translation>
        </message>
        <message>
            <source>Petabytes (10)</source>
            <extracomment>rsName_ectPetaBytes10</extracomment>
            <translation>Petabyte (10)</translation>
        </message>
        <message>
            <source>Exabytes (10)</source>
            <extracomment>rsName_ectExaBytes10</extracomment>
            <translation>Exabyte (10)</translation>
        </message>
        <message>
            <source>Kilobits (2)</source>
            <extracomment>rsName_ectKilobits</extracomment>
            <translation>Kilobit (2)</translation>
        </message>
        <message>
            <source>Megabits (2)</source>
            <extracomment>rsName_ectMegabits</extracomment>
            <translation>Megabit (2)</translation>
        </message>
        <message>
            <source>Gigabits (2)</source>
            <extracomment>rsName_ectGigabits</extracomment>
            <translation>Gigabit (2)</translation>
        </message>
        <message>
            <source>Terabits (2)</source>
            <extracomment>rsName_ectTerabits</extracomment>
            <translation>Terabit (2)</translation>
        </message>
        <message>
            <source>Petabits (2)</source>
            <extracomment>rsName_ectPetabits</extracomment>
            <translation>Petabit (2)</translation>
        </message>
        <message>
            <source>Exabits (2)</source>
            <extracomment>rsName_ectExabits</extracomment>
            <translation>Exabit (2)</translation>
        </message>
        <message>
            <source>Kibibits</source>
            <extracomment>rsName_ectKibibits</extracomment>
            <translation>Kibibit</translation>
        </message>
        <message>
            <source>Mebibits</source>
            <extracomment>rsName_ectMebibits</extracomment>
            <translation>Mebibit</translation>
        </message>
        <message>
            <source>Gibibits</source>
            <extracomment>rsName_ectGibibits</extracomment>
            <translation>Gibibit</translation>
        </message>
        <message>
            <source>Tebibits</source>
            <extracomment>rsName_ectTebibits</extracomment>
            <translation>Tebibit</translation>
        </message>
        <message>
            <source>Pebibits</source>
            <extracomment>rsName_ectPebibits</extracomment>
            <translation>Pebibit</translation>
        </message>
        <message>
            <source>Exbibits</source>
            <extracomment>rsName_ectExbibits</extracomment>
            <translation>Exbibit</translation>
        </message>
        <message>
            <source>Kilobits (10)</source>
            <extracomment>rsName_ectKilobits10</extracomment>
            <translation>Kilobit (10)</translation>
        </message>
        <message>
            <source>Megabits (10)</source>
            <extracomment>rsName_ectMegabits10</extracomment>
            <translation>Megabit (10)</translation>
        </message>
        <message>
            <source>Gigabits (10)</source>
            <extracomment>rsName_ectGigabits10</extracomment>
            <translation>Gigabit (10)</translation>
        </message>
        <message>
            <source>Terabits (10)</source>
            <extracomment>rsName_ectTerabits10</extracomment>
            <translation>Terabit (10)</translation>
        </message>
        <message>
            <source>Petabits (10)</source>
            <extracomment>rsName_ectPetabits10</extracomment>
            <translation>Petabit (10)</translation>
        </message>
        <message>
            <source>Exabits (10)</source>
            <extracomment>rsName_ectExabits10</extracomment>
            <translation>Exabit (10)</translation>
        </message>
        <message>
            <source>Minutes (Audio CD)</source>
            <extracomment>rsName_ectAudioMinutes</extracomment>
            <translation>Minute (Audio-CD)</translation>
        </message>
        <message>
            <source>Bits per Second</source>
            <extracomment>rsName_edrBitsPS</extracomment>
            <translation>Bit pro Sekunde</translation>
        </message>
        <message>
            <source>Kilobits per Second</source>
            <extracomment>rsName_edrKilobitsPS</extracomment>
            <translation>Kilobit pro Sekunde</translation>
        </message>
        <message>
            <source>Megabits per Second</source>
            <extracomment>rsName_edrMegabitsPS</extracomment>
            <translation>Megabit pro Sekunde</translation>
        </message>
        <message>
            <source>Gigabits per Second</source>
            <extracomment>rsName_edrGigabitsPS</extracomment>
            <translation>Gigabit pro Sekunde</translation>
        </message>
        <message>
            <source>Terabits per Second</source>
            <extracomment>rsName_edrTerabitsPS</extracomment>
            <translation>Terabit pro Sekunde</translation>
        </message>
        <message>
            <source>Bytes per Second</source>
            <extracomment>rsName_edrBytesPS</extracomment>
            <translation>Byte pro Sekunde</translation>
        </message>
        <message>
            <source>Kilobytes per Second</source>
            <extracomment>rsName_edrKilobytesPS</extracomment>
            <translation>Kilobyte pro Sekunde</translation>
        </message>
        <message>
            <source>Megabytes per Second</source>
            <extracomment>rsName_edrMegabytesPS</extracomment>
            <translation>Megabyte pro Sekunde</translation>
        </message>
        <message>
            <source>Gigabytes per Second</source>
            <extracomment>rsName_edrGigabytesPS</extracomment>
            <translation>Gigabyte pro Sekunde</translation>
        </message>
        <message>
            <source>Terabytes per Second</source>
            <extracomment>rsName_edrTerabytesPS</extracomment>
            <translation>Terabyte pro Sekunde</translation>
        </message>
        <message>
            <source>Baud</source>
            <extracomment>rsName_edrBaud</extracomment>
            <translation>Baud</translation>
        </message>
        <message>
            <source>Bits per Minute</source>
            <extracomment>rsName_edrBitsPM</extracomment>
            <translation>Bit pro Minute</translation>
        </message>
        <message>
            <source>Kilobits per Minute</source>
            <extracomment>rsName_edrKilobitsPM</extracomment>
            <translation>Kilobit pro Minute</translation>
        </message>
        <message>
            <source>Megabits per Minute</source>
            <extracomment>rsName_edrMegabitsPM</extracomment>
            <translation>Megabit pro Minute</translation>
        </message>
        <message>
            <source>Gigabits per Minute</source>
            <extracomment>rsName_edrGigabitsPM</extracomment>
            <translation>Gigabit pro Minute</translation>
        </message>
        <message>
            <source>Terabits per Minute</source>
            <extracomment>rsName_edrTerabitsPM</extracomment>
            <translation>Terabit pro Minute</translation>
        </message>
        <message>
            <source>Bytes per Minute</source>
            <extracomment>rsName_edrBytesPM</extracomment>
            <translation>Byte pro Minute</translation>
        </message>
        <message>
            <source>Kilobytes per Minute</source>
            <extracomment>rsName_edrKilobytesPM</extracomment>
            <translation>Kilobyte pro Minute</translation>
        </message>
        <message>
            <source>Megabytes per Minute</source>
            <extracomment>rsName_edrMegabytesPM</extracomment>
            <translation>Megabyte pro Minute</translation>
        </message>
        <message>
            <source>Gigabytes per Minute</source>
            <extracomment>rsName_edrGigabytesPM</extracomment>
            <translation>Gigabyte pro Minute</translation>
        </message>
        <message>
            <source>Terabytes per Minute</source>
            <extracomment>rsName_edrTerabytesPM</extracomment>
            <translation>Terabyte pro Minute</translation>
        </message>
        <message>
            <source>Bits per Hour</source>
            <extracomment>rsName_edrBitsPH</extracomment>
            <translation>Bit pro Stunde</translation>
        </message>
        <message>
            <source>Kilobits per Hour</source>
            <extracomment>rsName_edrKilobitsPH</extracomment>
            <translation>Kilobit pro Stunde</translation>
        </message>
        <message>
            <source>Megabits per Hour</source>
            <extracomment>rsName_edrMegabitsPH</extracomment>
            <translation>Megabit pro Stunde</translation>
        </message>
        <message>
            <source>Gigabits per Hour</source>
            <extracomment>rsName_edrGigabitsPH</extracomment>
            <translation>Gigabit pro Stunde</translation>
        </message>
        <message>
            <source>Terabits per Hour</source>
            <extracomment>rsName_edrTerabitsPH</extracomment>
            <translation>Terabit pro Stunde</translation>
        </message>
        <message>
            <source>Bytes per Hour</source>
            <extracomment>rsName_edrBytesPH</extracomment>
            <translation>Byte pro Stunde</translation>
        </message>
        <message>
            <source>Kilobytes per Hour</source>
            <extracomment>rsName_edrKilobytesPH</extracomment>
            <translation>Kilobyte pro Stunde</translation>
        </message>
        <message>
            <source>Megabytes per Hour</source>
            <extracomment>rsName_edrMegabytesPH</extracomment>
            <translation>Megabyte pro Stunde</translation>
        </message>
        <message>
            <source>Gigabytes per Hour</source>
            <extracomment>rsName_edrGigabytesPH</extracomment>
            <translation>Gigabyte pro Stunde</translation>
        </message>
        <message>
            <source>Terabytes per Hour</source>
            <extracomment>rsName_edrTerabytesPH</extracomment>
            <translation>Terabyte pro Stunde</translation>
        </message>
        <message>
            <source>Radians</source>
            <extracomment>rsName_eatRadians</extracomment>
            <translation>Radiant</translation>
        </message>
        <message>
            <source>Milliradians</source>
            <extracomment>rsName_eatMilliradians</extracomment>
            <translation>Milliradiant</translation>
        </message>
        <message>
            <source>Microradians</source>
            <extracomment>rsName_eatMicroradians</extracomment>
            <translation>Mikroradiant</translation>
        </message>
        <message>
            <source>Nanoradians</source>
            <extracomment>rsName_eatNanoradians</extracomment>
            <translation>Nanoradiant</translation>
        </message>
        <message>
            <source>Degrees</source>
            <extracomment>rsName_eatDegrees</extracomment>
            <translation>Grad</translation>
        </message>
        <message>
            <source>Grads</source>
            <extracomment>rsName_eatGrads</extracomment>
            <translation>Gon</translation>
        </message>
        <message>
            <source>Minutes</source>
            <extracomment>rsName_eatMinutes, rsName_ettMinutes</extracomment>
            <translation>Minute</translation>
        </message>
        <message>
            <source>Seconds</source>
            <extracomment>rsName_eatSeconds, rsName_ettSeconds</extracomment>
            <translation>Sekunde</translation>
        </message>
        <message>
            <source>Millidegrees</source>
            <extracomment>rsName_eatMillidegrees</extracomment>
            <translation>Milligrad</translation>
        </message>
        <message>
            <source>Microdegrees</source>
            <extracomment>rsName_eatMicrodegrees</extracomment>
            <translation>Mikrograd</translation>
        </message>
        <message>
            <source>Binary Degrees</source>
            <extracomment>rsName_eatBinaryDegrees</extracomment>
            <translation>Binärgrad</translation>
        </message>
        <message>
            <source>Binary Radians (Brads)</source>
            <extracomment>rsName_eatBinaryRadians</extracomment>
            <translation>Binärradiant (Brad)</translation>
        </message>
        <message>
            <source>Points</source>
            <extracomment>rsName_eatPointsAngle, rsName_edtPoints, rsName_emtPoints</extracomment>
            <translation>Punkt</translation>
        </message>
        <message>
            <source>Grade (%)</source>
            <extracomment>rsName_eatGrade</extracomment>
            <translation>Steigung (%)</translation>
        </message>
        <message>
            <source>Grade (per mil)</source>
            <extracomment>rsName_eatGradePerMil</extracomment>
            <translation>Steigung (Promille)</translation>
        </message>
        <message>
            <source>Rise Ratio</source>
            <extracomment>rsName_eatRiseRatio</extracomment>
            <translation>Steigungsverhältnis</translation>
        </message>
        <message>
            <source>Circles</source>
            <extracomment>rsName_eatCircles</extracomment>
            <translation>Vollkreis</translation>
        </message>
        <message>
            <source>Semicircles</source>
            <extracomment>rsName_eatSemicircles</extracomment>
            <translation>Halbkreis</translation>
        </message>
        <message>
            <source>Quadrants</source>
            <extracomment>rsName_eatQuadrants</extracomment>
            <translation>Quadrant</translation>
        </message>
        <message>
            <source>Angular Mils</source>
            <extracomment>rsName_eatAngularMils</extracomment>
            <translation>Winkelmil</translation>
        </message>
        <message>
            <source>Days</source>
            <extracomment>rsName_ettDays</extracomment>
            <translation>Tag</translation>
        </message>
        <message>
            <source>Hours</source>
            <extracomment>rsName_ettHours</extracomment>
            <translation>Stunde</translation>
        </message>
        <message>
            <source>Weeks</source>
            <extracomment>rsName_ettWeeks</extracomment>
            <translation>Woche</translation>
        </message>
        <message>
            <source>Fortnights</source>
            <extracomment>rsName_ettFortnights</extracomment>
            <translation>Zwei Wochen</translation>
        </message>
        <message>
            <source>Months (Synodic)</source>
            <extracomment>rsName_ettMonths</extracomment>
            <translation>Monat (synodisch)</translation>
        </message>
        <message>
            <source>Months (28 days)</source>
            <extracomment>rsName_ettMonths28</extracomment>
            <translation>Monat (28 Tage)</translation>
        </message>
        <message>
            <source>Months (30 days)</source>
            <extracomment>rsName_ettMonths30</extracomment>
            <translation>Monat (30 Tage)</translation>
        </message>
        <message>
            <source>Days (Sidereal)</source>
            <extracomment>rsName_ettSiderealDays</extracomment>
            <translation>Tag (siderisch)</translation>
        </message>
        <message>
            <source>Months (Sidereal)</source>
            <extracomment>rsName_ettSiderealMonths</extracomment>
            <translation>Monat (siderisch)</translation>
        </message>
        <message>
            <source>Years (Tropical)</source>
            <extracomment>rsName_ettYears</extracomment>
            <translation>Jahr (tropisch)</translation>
        </message>
        <message>
            <source>Years (360 days)</source>
            <extracomment>rsName_ettYears360</extracomment>
            <translation>Jahr (360 Tage)</translation>
        </message>
        <message>
            <source>Years (365 days)</source>
            <extracomment>rsName_ettYears365</extracomment>
            <translation>Jahr (365 Tage)</translation>
        </message>
        <message>
            <source>Years (Gregorian)</source>
            <extracomment>rsName_ettYearsGregorian</extracomment>
            <translation>Jahr (gregorianisch)</translation>
        </message>
        <message>
            <source>Years (Julian)</source>
            <extracomment>rsName_ettYearsJulian</extracomment>
            <translation>Jahr (julianisch)</translation>
        </message>
        <message>
            <source>Years (Sidereal)</source>
            <extracomment>rsName_ettYearsSidereal</extracomment>
            <translation>Jahr (siderisch)</translation>
        </message>
        <message>
            <source>Decades (Tropical)</source>
            <extracomment>rsName_ettDecades</extracomment>
            <translation>Jahrzehnt (tropisch)</translation>
        </message>
        <message>
            <source>Decades (3600 days)</source>
            <extracomment>rsName_ettDecades360</extracomment>
            <translation>Jahrzehnt (3600 Tage)</translation>
        </message>
        <message>
            <source>Decades (3650 days)</source>
            <extracomment>rsName_ettDecades365</extracomment>
            <translation>Jahrzehnt (3650 Tage)</translation>
        </message>
        <message>
            <source>Decades (Gregorian)</source>
            <extracomment>rsName_ettDecadesGregorian</extracomment>
            <translation>Jahrzehnt (gregorianisch)</translation>
        </message>
        <message>
            <source>Decades (Julian)</source>
            <extracomment>rsName_ettDecadesJulian</extracomment>
            <translation>Jahrzehnt (julianisch)</translation>
        </message>
        <message>
            <source>Centuries (Tropical)</source>
            <extracomment>rsName_ettCenturies</extracomment>
            <translation>Jahrhundert (tropisch)</translation>
        </message>
        <message>
            <source>Centuries (36000 days)</source>
            <extracomment>rsName_ettCenturies360</extracomment>
            <translation>Jahrhundert (36000 Tage)</translation>
        </message>
        <message>
            <source>Centuries (36500 days)</source>
            <extracomment>rsName_ettCenturies365</extracomment>
            <translation>Jahrhundert (36500 Tage)</translation>
        </message>
        <message>
            <source>Centuries (Gregorian)</source>
            <extracomment>rsName_ettCenturiesGregorian</extracomment>
            <translation>Jahrhundert (gregorianisch)</translation>
        </message>
        <message>
            <source>Centuries (Julian)</source>
            <extracomment>rsName_ettCenturiesJulian</extracomment>
            <translation>Jahrhundert (julianisch)</translation>
        </message>
        <message>
            <source>Microseconds</source>
            <extracomment>rsName_ettMicroseconds</extracomment>
            <translation>Mikrosekunde</translation>
        </message>
        <message>
            <source>Milliseconds</source>
            <extracomment>rsName_ettMilliseconds</extracomment>
            <translation>Millisekunde</translation>
        </message>
        <message>
            <source>Kiloseconds</source>
            <extracomment>rsName_ettKiloseconds</extracomment>
            <translation>Kilosekunde</translation>
        </message>
        <message>
            <source>Megaseconds</source>
            <extracomment>rsName_ettMegaseconds</extracomment>
            <translation>Megasekunde</translation>
        </message>
        <message>
            <source>Gigaseconds</source>
            <extracomment>rsName_ettGigaseconds</extracomment>
            <translation>Gigasekunde</translation>
        </message>
        <message>
            <source>Years (Sidereal - Mars)</source>
            <extracomment>rsName_ettMarsYears</extracomment>
            <translation>Jahr (siderisch – Mars)</translation>
        </message>
        <message>
            <source>Days (Solar - Mars)(Sols)</source>
            <extracomment>rsName_ettMarsSolarDays</extracomment>
            <translation>Tag (Sonnentag – Mars) (Sol)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Mars)</source>
            <extracomment>rsName_ettMarsSiderealDays</extracomment>
            <translation>Tag (siderisch – Mars)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Venus)</source>
            <extracomment>rsName_ettVenusYears</extracomment>
            <translation>Jahr (siderisch – Venus)</translation>
        </message>
        <message>
            <source>Days (Solar - Venus)</source>
            <extracomment>rsName_ettVenusSolarDays</extracomment>
            <translation>Tag (Sonnentag – Venus)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Venus)</source>
            <extracomment>rsName_ettVenusSiderealDays</extracomment>
            <translation>Tag (siderisch – Venus)</translation>
        </message>
        <message>
            <source>Nanoseconds</source>
            <extracomment>rsName_ettNanoseconds</extracomment>
            <translation>Nanosekunde</translation>
        </message>
        <message>
            <source>Picoseconds</source>
            <extracomment>rsName_ettPicoseconds</extracomment>
            <translation>Pikosekunde</translation>
        </message>
        <message>
            <source>Femtoesconds</source>
            <extracomment>rsName_ettFemtoseconds</extracomment>
            <translation>Femtosekunde</translation>
        </message>
        <message>
            <source>Days (Solar - Luna)</source>
            <extracomment>rsName_ettLunaDaysSolar, rsName_ettLunaDaysSidereal</extracomment>
            <translation>Tag (Sonnentag – Mond)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Mercury)</source>
            <extracomment>rsName_ettMercuryYears</extracomment>
            <translation>Jahr (siderisch – Merkur)</translation>
        </message>
        <message>
            <source>Days (Solar - Mercury)</source>
            <extracomment>rsName_ettMercurySolarDays</extracomment>
            <translation>Tag (Sonnentag – Merkur)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Mercury)</source>
            <extracomment>rsName_ettMercurySiderealDays</extracomment>
            <translation>Tag (siderisch – Merkur)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Jupiter)</source>
            <extracomment>rsName_ettJupiterYears</extracomment>
            <translation>Jahr (siderisch – Jupiter)</translation>
        </message>
        <message>
            <source>Days (Solar - Jupiter)</source>
            <extracomment>rsName_ettJupiterSolarDays</extracomment>
            <translation>Tag (Sonnentag – Jupiter)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Jupiter)</source>
            <extracomment>rsName_ettJupiterSiderealDays</extracomment>
            <translation>Tag (siderisch – Jupiter)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Saturn)</source>
            <extracomment>rsName_ettSaturnYears</extracomment>
            <translation>Jahr (siderisch – Saturn)</translation>
        </message>
        <message>
            <source>Days (Solar - Saturn)</source>
            <extracomment>rsName_ettSaturnSolarDays</extracomment>
            <translation>Tag (Sonnentag – Saturn)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Saturn)</source>
            <extracomment>rsName_ettSaturnSiderealDays</extracomment>
            <translation>Tag (siderisch – Saturn)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Uranus)</source>
            <extracomment>rsName_ettUranusYears</extracomment>
            <translation>Jahr (siderisch – Uranus)</translation>
        </message>
        <message>
            <source>Days (Solar - Uranus)</source>
            <extracomment>rsName_ettUranusSolarDays</extracomment>
            <translation>Tag (Sonnentag – Uranus)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Uranus)</source>
            <extracomment>rsName_ettUranusSiderealDays</extracomment>
            <translation>Tag (siderisch – Uranus)</translation>
        </message>
        <message>
            <source>Years (Sidereal - Neptune)</source>
            <extracomment>rsName_ettNeptuneYears</extracomment>
            <translation>Jahr (siderisch – Neptun)</translation>
        </message>
        <message>
            <source>Days (Solar - Neptune)</source>
            <extracomment>rsName_ettNeptuneSolarDays</extracomment>
            <translation>Tag (Sonnentag – Neptun)</translation>
        </message>
        <message>
            <source>Days (Sidereal - Neptune)</source>
            <extracomment>rsName_ettNeptuneSiderealDays</extracomment>
            <translation>Tag (siderisch – Neptun)</translation>
        </message>
        <message>
            <source>Years (364 days)</source>
            <extracomment>rsName_ettYears364</extracomment>
            <translation>Jahr (364 Tage)</translation>
        </message>
        <message>
            <source>Decades (3640 days)</source>
            <extracomment>rsName_ettDecades364</extracomment>
            <translation>Jahrzehnt (3640 Tage)</translation>
        </message>
        <message>
            <source>Centuries (36400 days)</source>
            <extracomment>rsName_ettCenturies364</extracomment>
            <translation>Jahrhundert (36400 Tage)</translation>
        </message>
        <message>
            <source>Months (Lunar)</source>
            <extracomment>rsName_ettMonthsLunar</extracomment>
            <translation>Monat (lunar)</translation>
        </message>
        <message>
            <source>Lunations</source>
            <extracomment>rsName_ettLunations</extracomment>
            <translation>Lunation</translation>
        </message>
        <message>
            <source>Years (Lunar)</source>
            <extracomment>rsName_ettYearsLunar</extracomment>
            <translation>Jahr (lunar)</translation>
        </message>
        <message>
            <source />
            <extracomment>rsName_ettSunDaysSidereal</extracomment>
            <translation />
        </message>
        <message>
            <source>Kelvin</source>
            <extracomment>rsName_ettKelvin</extracomment>
            <translation>Kelvin</translation>
        </message>
        <message>
            <source>Fahrenheit</source>
            <extracomment>rsName_ettFahrenheit</extracomment>
            <translation>Fahrenheit</translation>
        </message>
        <message>
            <source>Celsius</source>
            <extracomment>rsName_ettCelsius</extracomment>
            <translation>Celsius</translation>
        </message>
        <message>
            <source>Réaumur</source>
            <extracomment>rsName_ettReaumur</extracomment>
            <translation>Réaumur</translation>
        </message>
        <message>
            <source>Rankine</source>
            <extracomment>rsName_ettRankine</extracomment>
            <translation>Rankine</translation>
        </message>
        <message>
            <source>Rømer</source>
            <extracomment>rsName_ettRomer</extracomment>
            <translation>Rømer</translation>
        </message>
        <message>
            <source>Delisle</source>
            <extracomment>rsName_ettDelisle</extracomment>
            <translation>Delisle</translation>
        </message>
        <message>
            <source>Newton</source>
            <extracomment>rsName_ettNewton</extracomment>
            <translation>Newton</translation>
        </message>
        <message>
            <source>Metres</source>
            <extracomment>rsName_edtMetres</extracomment>
            <translation>Meter</translation>
        </message>
        <message>
            <source>Centimetres</source>
            <extracomment>rsName_edtCentimetres</extracomment>
            <translation>Zentimeter</translation>
        </message>
        <message>
            <source>Millimetres</source>
            <extracomment>rsName_edtMillimetres</extracomment>
            <translation>Millimeter</translation>
        </message>
        <message>
            <source>Microns</source>
            <extracomment>rsName_edtMicrons, rsName_eptMicronsPressure</extracomment>
            <translation>Mikron</translation>
        </message>
        <message>
            <source>Micrometres</source>
            <extracomment>rsName_edtMicrometres</extracomment>
            <translation>Mikrometer</translation>
        </message>
        <message>
            <source>Nanometres</source>
            <extracomment>rsName_edtNanometres</extracomment>
            <translation>Nanometer</translation>
        </message>
        <message>
            <source>Angstroms</source>
            <extracomment>rsName_edtAngstroms</extracomment>
            <translation>Ångström</translation>
        </message>
        <message>
            <source>Kilometres</source>
            <extracomment>rsName_edtKilometres</extracomment>
            <translation>Kilometer</translation>
        </message>
        <message>
            <source>Feet</source>
            <extracomment>rsName_edtFeet</extracomment>
            <translation>Fuß</translation>
        </message>
        <message>
            <source>Mils</source>
            <extracomment>rsName_edtMils</extracomment>
            <translation>Mil</translation>
        </message>
        <message>
            <source>Inches</source>
            <extracomment>rsName_edtInches</extracomment>
            <translation>Zoll</translation>
        </message>
        <message>
            <source>Yards</source>
            <extracomment>rsName_edtYards</extracomment>
            <translation>Yard</translation>
        </message>
        <message>
            <source>Miles</source>
            <extracomment>rsName_edtMiles</extracomment>
            <translation>Meile</translation>
        </message>
        <message>
            <source>Fathoms</source>
            <extracomment>rsName_edtFathoms</extracomment>
            <translation>Faden</translation>
        </message>
        <message>
            <source>Shackles (12.5 Fathoms)</source>
            <extracomment>rsName_edtShackles12</extracomment>
            <translation>Schäkel (12,5 Faden)</translation>
        </message>
        <message>
            <source>Shackles (15 Fathoms)</source>
            <extracomment>rsName_edtShackles15</extracomment>
            <translation>Schäkel (15 Faden)</translation>
        </message>
        <message>
            <source>Nautical Miles (UK)</source>
            <extracomment>rsName_edtNauticalMilesUK</extracomment>
            <translation>Seemeile (brit.)</translation>
        </message>
        <message>
            <source>Nautical Miles (US)</source>
            <extracomment>rsName_edtNauticalMilesUS</extracomment>
            <translation>Seemeile (US)</translation>
        </message>
        <message>
            <source>Nautical Miles (International)</source>
            <extracomment>rsName_edtNauticalMilesInt</extracomment>
            <translation>Seemeile (international)</translation>
        </message>
        <message>
            <source>Nautical Miles (Telegraphic)</source>
            <extracomment>rsName_edtNauticalMilesTelegraph</extracomment>
            <translation>Seemeile (telegrafisch)</translation>
        </message>
        <message>
            <source>Geographical Miles</source>
            <extracomment>rsName_edtGeographicalMiles</extracomment>
            <translation>Geografische Meile</translation>
        </message>
        <message>
            <source>Admiralty Miles</source>
            <extracomment>rsName_edtAdmiraltyMiles</extracomment>
            <translation>Admiralitätsmeile</translation>
        </message>
        <message>
            <source>Roman Miles</source>
            <extracomment>rsName_edtRomanMiles</extracomment>
            <translation>römische Meile</translation>
        </message>
        <message>
            <source>Roman Feet</source>
            <extracomment>rsName_edtRomanFeet</extracomment>
            <translation>römischer Fuß</translation>
        </message>
        <message>
            <source>Unciae (Roman Inches)</source>
            <extracomment>rsName_edtUnciae</extracomment>
            <translation>Uncia (römischer Zoll)</translation>
        </message>
        <message>
            <source>Scottish Miles</source>
            <extracomment>rsName_edtScottishMiles</extracomment>
            <translation>schottische Meile</translation>
        </message>
        <message>
            <source>Irish Miles</source>
            <extracomment>rsName_edtIrishMiles</extracomment>
            <translation>irische Meile</translation>
        </message>
        <message>
            <source>Chains</source>
            <extracomment>rsName_edtChains</extracomment>
            <translation>Chain</translation>
        </message>
        <message>
            <source>Chains (Engineer)</source>
            <extracomment>rsName_edtEngChains</extracomment>
            <translation>Chain (Ingenieur)</translation>
        </message>
        <message>
            <source>Rods</source>
            <extracomment>rsName_edtRods</extracomment>
            <translation>Rute</translation>
        </message>
        <message>
            <source>Links</source>
            <extracomment>rsName_edtLinks</extracomment>
            <translation>Link</translation>
        </message>
        <message>
            <source>Links (Engineer)</source>
            <extracomment>rsName_edtEngLinks</extracomment>
            <translation>Link (Ingenieur)</translation>
        </message>
        <message>
            <source>Hands</source>
            <extracomment>rsName_edtHands</extracomment>
            <translation>Hand</translation>
        </message>
        <message>
            <source>Feet (US Survey)</source>
            <extracomment>rsName_edtFeetUSSurvey</extracomment>
            <translation>Fuß (US-Vermessung)</translation>
        </message>
        <message>
            <source>Inches (US Survey)</source>
            <extracomment>rsName_edtInchesUSSurvey</extracomment>
            <translation>Zoll (US-Vermessung)</translation>
        </message>
        <message>
            <source>Thous</source>
            <extracomment>rsName_edtThous</extracomment>
            <translation>Thou</translation>
        </message>
        <message>
            <source>Poles</source>
            <extracomment>rsName_edtPoles</extracomment>
            <translation>Pole</translation>
        </message>
        <message>
            <source>Perches</source>
            <extracomment>rsName_edtPerches, rsName_eatPerches</extracomment>
            <translation>Perch</translation>
        </message>
        <message>
            <source>Furlongs</source>
            <extracomment>rsName_edtFurlongs</extracomment>
            <translation>Furlong</translation>
        </message>
        <message>
            <source>Leagues (UK Land)</source>
            <extracomment>rsName_edtLeaguesUKLand</extracomment>
            <translation>League (brit., Land)</translation>
        </message>
        <message>
            <source>Leagues (UK Sea)</source>
            <extracomment>rsName_edtLeaguesUKSea</extracomment>
            <translation>League (brit., See)</translation>
        </message>
        <message>
            <source>Leagues (US)</source>
            <extracomment>rsName_edtLeaguesUS</extracomment>
            <translation>League (US)</translation>
        </message>
        <message>
            <source>Astronomical Units</source>
            <extracomment>rsName_edtAstronomicalUnits</extracomment>
            <translation>Astronomische Einheit</translation>
        </message>
        <message>
            <source>Light Years</source>
            <extracomment>rsName_edtLightYears</extracomment>
            <translation>Lichtjahr</translation>
        </message>
        <message>
            <source>Light Years (365 Days)</source>
            <extracomment>rsName_edtLightYears365</extracomment>
            <translation>Lichtjahr (365 Tage)</translation>
        </message>
        <message>
            <source>Parsecs</source>
            <extracomment>rsName_edtParsecs</extracomment>
            <translation>Parsec</translation>
        </message>
        <message>
            <source>Picas</source>
            <extracomment>rsName_edtPicas</extracomment>
            <translation>Pica</translation>
        </message>
        <message>
            <source>Light Seconds</source>
            <extracomment>rsName_edtLightSeconds</extracomment>
            <translation>Lichtsekunde</translation>
        </message>
        <message>
            <source>Light Minutes</source>
            <extracomment>rsName_edtLightMinutes</extracomment>
            <translation>Lichtminute</translation>
        </message>
        <message>
            <source>Light Hours</source>
            <extracomment>rsName_edtLightHours</extracomment>
            <translation>Lichtstunde</translation>
        </message>
        <message>
            <source>Light Days</source>
            <extracomment>rsName_edtLightDays</extracomment>
            <translation>Lichttag</translation>
        </message>
        <message>
            <source>Pouces</source>
            <extracomment>rsName_edtPouces</extracomment>
            <translation>Pouce</translation>
        </message>
        <message>
            <source>Pieds de roi</source>
            <extracomment>rsName_edtPieds</extracomment>
            <translation>Pied du Roi</translation>
        </message>
        <message>
            <source>Barleycorns</source>
            <extracomment>rsName_edtBarleycorn</extracomment>
            <translation>Gerstenkorn</translation>
        </message>
        <message>
            <source>Paris Points</source>
            <extracomment>rsName_edtParisPoint</extracomment>
            <translation>Pariser Punkt</translation>
        </message>
        <message>
            <source>Cubits (Common)</source>
            <extracomment>rsName_edtCubitsCommon</extracomment>
            <translation>Elle (gewöhnlich)</translation>
        </message>
        <message>
            <source>Cubits (Roman)</source>
            <extracomment>rsName_edtCubitsRoman</extracomment>
            <translation>Elle (römisch)</translation>
        </message>
        <message>
            <source>Cubits (Greek)</source>
            <extracomment>rsName_edtCubitsGreek</extracomment>
            <translation>Elle (griechisch)</translation>
        </message>
        <message>
            <source>Cubits (Short)</source>
            <extracomment>rsName_edtCubitsShort</extracomment>
            <translation>Elle (kurz)</translation>
        </message>
        <message>
            <source>Spans</source>
            <extracomment>rsName_edtSpans</extracomment>
            <translation>Spanne</translation>
        </message>
        <message>
            <source>Smoots</source>
            <extracomment>rsName_edtSmoots</extracomment>
            <translation>Smoot</translation>
        </message>
        <message>
            <source>Inch (Tenths of)</source>
            <extracomment>rsName_edtInchTenth</extracomment>
            <translation>Zehntelzoll</translation>
        </message>
        <message>
            <source>Inch (Sixteenths of)</source>
            <extracomment>rsName_edtInchSixteenth</extracomment>
            <translation>Sechzehntelzoll</translation>
        </message>
        <message>
            <source>Inch (Thirty-Seconds of)</source>
            <extracomment>rsName_edtInchThirtySecond</extracomment>
            <translation>Zweiunddreißigstelzoll</translation>
        </message>
        <message>
            <source>Inch (Sixty-Fourths of)</source>
            <extracomment>rsName_edtInchSixtyFourth</extracomment>
            <translation>Vierundsechzigstelzoll</translation>
        </message>
        <message>
            <source>Decimetres</source>
            <extracomment>rsName_edtDecimetres</extracomment>
            <translation>Dezimeter</translation>
        </message>
        <message>
            <source>Decametres</source>
            <extracomment>rsName_edtDecametres</extracomment>
            <translation>Dekameter</translation>
        </message>
        <message>
            <source>Microinches</source>
            <extracomment>rsName_edtMicroinches</extracomment>
            <translation>Mikrozoll</translation>
        </message>
        <message>
            <source>Picometres</source>
            <extracomment>rsName_edtPicometres</extracomment>
            <translation>Pikometer</translation>
        </message>
        <message>
            <source>Femtometres</source>
            <extracomment>rsName_edtFemtometres</extracomment>
            <translation>Femtometer</translation>
        </message>
        <message>
            <source>Fermi</source>
            <extracomment>rsName_edtFermi</extracomment>
            <translation>Fermi</translation>
        </message>
        <message>
            <source>Bohr Radii</source>
            <extracomment>rsName_edtBohrRadius</extracomment>
            <translation>Bohrradius</translation>
        </message>
        <message>
            <source>Light Milliseconds</source>
            <extracomment>rsName_edtLightMilliseconds</extracomment>
            <translation>Lichtmillisekunde</translation>
        </message>
        <message>
            <source>Light Microseconds</source>
            <extracomment>rsName_edtLightMicroseconds</extracomment>
            <translation>Lichtmikrosekunde</translation>
        </message>
        <message>
            <source>Miles (US Survey)</source>
            <extracomment>rsName_edtMilesUSSurvey</extracomment>
            <translation>Meile (US-Vermessung)</translation>
        </message>
        <message>
            <source>Megaparsecs</source>
            <extracomment>rsName_edtMegaparsecs</extracomment>
            <translation>Megaparsec</translation>
        </message>
        <message>
            <source>Gigaparsecs</source>
            <extracomment>rsName_edtGigaparsecs</extracomment>
            <translation>Gigaparsec</translation>
        </message>
        <message>
            <source>Football Field lengths (CAN)</source>
            <extracomment>rsName_edtFootballLensCan</extracomment>
            <translation>Footballfeldlänge (CAN)</translation>
        </message>
        <message>
            <source>Football Field Widths (CAN)</source>
            <extracomment>rsName_edtFootballWidthsCan</extracomment>
            <translation>Footballfeldbreite (CAN)</translation>
        </message>
        <message>
            <source>Cricket Pitches</source>
            <extracomment>rsName_edtCricketPitches</extracomment>
            <translation>Cricketpitch</translation>
        </message>
        <message>
            <source>Earth Radii</source>
            <extracomment>rsName_edtEarthRadii</extracomment>
            <translation>Erdradius</translation>
        </message>
        <message>
            <source>Empire State Buildings</source>
            <extracomment>rsName_edtEmpireStateBuildings</extracomment>
            <translation>Empire State Building</translation>
        </message>
        <message>
            <source>Golf Balls</source>
            <extracomment>rsName_edtGolfBallDiameters, rsName_emtGolfBallMasses, rsName_evtGolfBalls</extracomment>
            <translation>Golfball</translation>
        </message>
        <message>
            <source>Olympic Soccer Field Lengths</source>
            <extracomment>rsName_edtOlympicSoccerLens</extracomment>
            <translation>Länge eines olympischen Fußballfelds</translation>
        </message>
        <message>
            <source>Olympic Soccer Field Widths</source>
            <extracomment>rsName_edtOlympicSoccerWidths</extracomment>
            <translation>Breite eines olympischen Fußballfelds</translation>
        </message>
        <message>
            <source>Olympic Pools</source>
            <extracomment>rsName_edtOlympicPools, rsName_evtOlympicPools</extracomment>
            <translation>Olympiabecken</translation>
        </message>
        <message>
            <source>Ping Pong Balls</source>
            <extracomment>rsName_edtPingPongBallDiameters, rsName_evtPingPongBalls</extracomment>
            <translation>Tischtennisball</translation>
        </message>
        <message>
            <source>Football Field Lengths (US)</source>
            <extracomment>rsName_edtFootballLensUS</extracomment>
            <translation>Footballfeldlänge (US)</translation>
        </message>
        <message>
            <source>Football Field Widths (US)</source>
            <extracomment>rsName_edtFootbalWidthsUS</extracomment>
            <translation>Footballfeldbreite (US)</translation>
        </message>
        <message>
            <source>Planck Lengths</source>
            <extracomment>rsName_edtPlanckLengths</extracomment>
            <translation>Plancklänge</translation>
        </message>
        <message>
            <source>Earth Radii (Equatorial)</source>
            <extracomment>rsName_edtEarthRadiiEquatorial</extracomment>
            <translation>Erdradius (äquatorial)</translation>
        </message>
        <message>
            <source>Earth Radii (Polar)</source>
            <extracomment>rsName_edtEarthRadiiPolar</extracomment>
            <translation>Erdradius (polar)</translation>
        </message>
        <message>
            <source>Luna Radii (Equatorial)</source>
            <extracomment>rsName_edtLunaRadiiEquatorial</extracomment>
            <translation>Mondradius (äquatorial)</translation>
        </message>
        <message>
            <source>Luna Radii (Polar)</source>
            <extracomment>rsName_edtLunaRadiiPolar</extracomment>
            <translation>Mondradius (polar)</translation>
        </message>
        <message>
            <source>Mars Radii (Equatorial)</source>
            <extracomment>rsName_edtMarsRadiiEquatorial</extracomment>
            <translation>Marsradius (äquatorial)</translation>
        </message>
        <message>
            <source>Mars Radii (Polar)</source>
            <extracomment>rsName_edtMarsRadiiPolar</extracomment>
            <translation>Marsradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Mars</source>
            <extracomment>rsName_edtSunToMars</extracomment>
            <translation>Sonne–Mars</translation>
        </message>
        <message>
            <source>Venus Radii (Equatorial)</source>
            <extracomment>rsName_edtVenusRadiiEquatorial</extracomment>
            <translation>Venusradius (äquatorial)</translation>
        </message>
        <message>
            <source>Venus Radii (Polar)</source>
            <extracomment>rsName_edtVenusRadiiPolar</extracomment>
            <translation>Venusradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Venus</source>
            <extracomment>rsName_edtSunToVenus</extracomment>
            <translation>Sonne–Venus</translation>
        </message>
        <message>
            <source>Lí (1930)</source>
            <extracomment>rsName_edtLiDist1930</extracomment>
            <translation>Lí (1930)</translation>
        </message>
        <message>
            <source>Chi (1930)</source>
            <extracomment>rsName_edtChiDist1930</extracomment>
            <translation>Chi (1930)</translation>
        </message>
        <message>
            <source>Cùn (1930)</source>
            <extracomment>rsName_edtCunDist1930</extracomment>
            <translation>Cùn (1930)</translation>
        </message>
        <message>
            <source>Mercury Radii (Equatorial)</source>
            <extracomment>rsName_edtMercuryRadiiEquatorial</extracomment>
            <translation>Merkurradius (äquatorial)</translation>
        </message>
        <message>
            <source>Mercury Radii (Polar)</source>
            <extracomment>rsName_edtMercuryRadiiPolar</extracomment>
            <translation>Merkurradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Mercury</source>
            <extracomment>rsName_edtSunToMercury</extracomment>
            <translation>Sonne–Merkur</translation>
        </message>
        <message>
            <source>Jupiter Radii (Equatorial)</source>
            <extracomment>rsName_edtJupiterRadiiEquatorial</extracomment>
            <translation>Jupiterradius (äquatorial)</translation>
        </message>
        <message>
            <source>Jupiter Radii (Polar)</source>
            <extracomment>rsName_edtJupiterRadiiPolar</extracomment>
            <translation>Jupiterradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Jupiter</source>
            <extracomment>rsName_edtSunToJupiter</extracomment>
            <translation>Sonne–Jupiter</translation>
        </message>
        <message>
            <source>Saturn Radii (Equatorial)</source>
            <extracomment>rsName_edtSaturnRadiiEquatorial</extracomment>
            <translation>Saturnradius (äquatorial)</translation>
        </message>
        <message>
            <source>Saturn Radii (Polar)</source>
            <extracomment>rsName_edtSaturnRadiiPolar</extracomment>
            <translation>Saturnradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Saturn</source>
            <extracomment>rsName_edtSunToSaturn</extracomment>
            <translation>Sonne–Saturn</translation>
        </message>
        <message>
            <source>Uranus Radii (Equatorial)</source>
            <extracomment>rsName_edtUranusRadiiEquatorial</extracomment>
            <translation>Uranusradius (äquatorial)</translation>
        </message>
        <message>
            <source>Uranus Radii (Polar)</source>
            <extracomment>rsName_edtUranusRadiiPolar</extracomment>
            <translation>Uranusradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Uranus</source>
            <extracomment>rsName_edtSunToUranus</extracomment>
            <translation>Sonne–Uranus</translation>
        </message>
        <message>
            <source>Neptune Radii (Equatorial)</source>
            <extracomment>rsName_edtNeptuneRadiiEquatorial</extracomment>
            <translation>Neptunradius (äquatorial)</translation>
        </message>
        <message>
            <source>Neptune Radii (Polar)</source>
            <extracomment>rsName_edtNeptuneRadiiPolar</extracomment>
            <translation>Neptunradius (polar)</translation>
        </message>
        <message>
            <source>Sun to Neptune</source>
            <extracomment>rsName_edtSunToNeptune</extracomment>
            <translation>Sonne–Neptun</translation>
        </message>
        <message>
            <source>Inch (Eighths of)</source>
            <extracomment>rsName_edtInchEighth</extracomment>
            <translation>Achtelzoll</translation>
        </message>
        <message>
            <source>Inch (Thousandths of)</source>
            <extracomment>rsName_edtInchThousandth</extracomment>
            <translation>Tausendstelzoll</translation>
        </message>
        <message>
            <source>Solar Radii</source>
            <extracomment>rsName_edtSolarRadii</extracomment>
            <translation>Sonnenradius</translation>
        </message>
        <message>
            <source>Kilograms</source>
            <extracomment>rsName_emtKilograms</extracomment>
            <translation>Kilogramm</translation>
        </message>
        <message>
            <source>Grams</source>
            <extracomment>rsName_emtGrams</extracomment>
            <translation>Gramm</translation>
        </message>
        <message>
            <source>Milligrams</source>
            <extracomment>rsName_emtMilligrams</extracomment>
            <translation>Milligramm</translation>
        </message>
        <message>
            <source>Tonnes</source>
            <extracomment>rsName_emtTonnes</extracomment>
            <translation>Tonne</translation>
        </message>
        <message>
            <source>Pounds</source>
            <extracomment>rsName_emtPounds</extracomment>
            <translation>Pfund</translation>
        </message>
        <message>
            <source>Ounces</source>
            <extracomment>rsName_emtOunces</extracomment>
            <translation>Unze</translation>
        </message>
        <message>
            <source>Stones</source>
            <extracomment>rsName_emtStones</extracomment>
            <translation>Stone</translation>
        </message>
        <message>
            <source>Quarters (Short)</source>
            <extracomment>rsName_emtShortQuarters</extracomment>
            <translation>Quarter (kurz)</translation>
        </message>
        <message>
            <source>Tons (Long)</source>
            <extracomment>rsName_emtTons</extracomment>
            <translation>Long Ton</translation>
        </message>
        <message>
            <source>Tons (Short)</source>
            <extracomment>rsName_emtShortTons</extracomment>
            <translation>Short Ton</translation>
        </message>
        <message>
            <source>Hundredweights</source>
            <extracomment>rsName_emtHundredWeights</extracomment>
            <translation>Hundredweight</translation>
        </message>
        <message>
            <source>Hundredweights (Short)</source>
            <extracomment>rsName_emtShortHundredWeights</extracomment>
            <translation>Hundredweight (kurz)</translation>
        </message>
        <message>
            <source>Drams</source>
            <extracomment>rsName_emtDrams</extracomment>
            <translation>Dram</translation>
        </message>
        <message>
            <source>Grains</source>
            <extracomment>rsName_emtGrains</extracomment>
            <translation>Gran</translation>
        </message>
        <message>
            <source>Scruples</source>
            <extracomment>rsName_emtScruples</extracomment>
            <translation>Skrupel</translation>
        </message>
        <message>
            <source>Grains (Metric)</source>
            <extracomment>rsName_emtMetricGrains</extracomment>
            <translation>Gran (metrisch)</translation>
        </message>
        <message>
            <source>Carats</source>
            <extracomment>rsName_emtCarats</extracomment>
            <translation>Karat</translation>
        </message>
        <message>
            <source>Pounds (Troy)</source>
            <extracomment>rsName_emtTroyPounds</extracomment>
            <translation>Pfund (Troy)</translation>
        </message>
        <message>
            <source>Ounces (Troy)</source>
            <extracomment>rsName_emtTroyOunces</extracomment>
            <translation>Unze (Troy)</translation>
        </message>
        <message>
            <source>Roman Ounces</source>
            <extracomment>rsName_emtRomanOunces</extracomment>
            <translation>römische Unze</translation>
        </message>
        <message>
            <source>Roman Pounds</source>
            <extracomment>rsName_emtRomanPounds</extracomment>
            <translation>römisches Pfund</translation>
        </message>
        <message>
            <source>Pennyweights</source>
            <extracomment>rsName_emtPennyweights</extracomment>
            <translation>Pennyweight</translation>
        </message>
        <message>
            <source>Slugs</source>
            <extracomment>rsName_emtSlugs</extracomment>
            <translation>Slug</translation>
        </message>
        <message>
            <source>Zentners</source>
            <extracomment>rsName_emtZentners</extracomment>
            <translation>Zentner</translation>
        </message>
        <message>
            <source>Pfund</source>
            <extracomment>rsName_emtPfund</extracomment>
            <translation>Pfund</translation>
        </message>
        <message>
            <source>Livre</source>
            <extracomment>rsName_emtLivre</extracomment>
            <translation>Livre</translation>
        </message>
        <message>
            <source>Micrograms</source>
            <extracomment>rsName_emtMicrograms</extracomment>
            <translation>Mikrogramm</translation>
        </message>
        <message>
            <source>Nanograms</source>
            <extracomment>rsName_emtNanograms</extracomment>
            <translation>Nanogramm</translation>
        </message>
        <message>
            <source>Picograms</source>
            <extracomment>rsName_emtPicograms</extracomment>
            <translation>Pikogramm</translation>
        </message>
        <message>
            <source>Kilopounds</source>
            <extracomment>rsName_emtKilopounds</extracomment>
            <translation>Kilopfund</translation>
        </message>
        <message>
            <source>Kips</source>
            <extracomment>rsName_emtKips</extracomment>
            <translation>Kip</translation>
        </message>
        <message>
            <source>Tolas</source>
            <extracomment>rsName_emtTolas</extracomment>
            <translation>Tola</translation>
        </message>
        <message>
            <source>Taels (Chinese)</source>
            <extracomment>rsName_emtTaelsChina</extracomment>
            <translation>Tael (chinesisch)</translation>
        </message>
        <message>
            <source>Taels (Japanese)</source>
            <extracomment>rsName_emtTaelsJap</extracomment>
            <translation>Tael (japanisch)</translation>
        </message>
        <message>
            <source>Momme</source>
            <extracomment>rsName_emtMomme</extracomment>
            <translation>Momme</translation>
        </message>
        <message>
            <source>Berkovets</source>
            <extracomment>rsName_emtBerkovets</extracomment>
            <translation>Berkowez</translation>
        </message>
        <message>
            <source>Pood</source>
            <extracomment>rsName_emtPood</extracomment>
            <translation>Pud</translation>
        </message>
        <message>
            <source>Funt</source>
            <extracomment>rsName_emtFunt</extracomment>
            <translation>Funt</translation>
        </message>
        <message>
            <source>Lot (Russian)</source>
            <extracomment>rsName_emtLot</extracomment>
            <translation>Lot (russisch)</translation>
        </message>
        <message>
            <source>Zolotnik</source>
            <extracomment>rsName_emtZolotnik</extracomment>
            <translation>Solotnik</translation>
        </message>
        <message>
            <source>Dolya</source>
            <extracomment>rsName_emtDolya</extracomment>
            <translation>Dolja</translation>
        </message>
        <message>
            <source>Quintals</source>
            <extracomment>rsName_emtQuintals</extracomment>
            <translation>Quintal</translation>
        </message>
        <message>
            <source>Quintals (Metric)</source>
            <extracomment>rsName_emtQuintalsMetric</extracomment>
            <translation>Quintal (metrisch)</translation>
        </message>
        <message>
            <source>Centners</source>
            <extracomment>rsName_emtCentners</extracomment>
            <translation>Zentner</translation>
        </message>
        <message>
            <source>Centners (Metric)</source>
            <extracomment>rsName_emtCentnersMetric</extracomment>
            <translation>Zentner (metrisch)</translation>
        </message>
        <message>
            <source>Centners (Short Metric)</source>
            <extracomment>rsName_emtCentnersShortMetric</extracomment>
            <translation>Zentner (kurz, metrisch)</translation>
        </message>
        <message>
            <source>Libras (Roman)</source>
            <extracomment>rsName_emtLibras</extracomment>
            <translation>Libra (römisch)</translation>
        </message>
        <message>
            <source>Libras (Metric)</source>
            <extracomment>rsName_emtLibrasMetric</extracomment>
            <translation>Libra (metrisch)</translation>
        </message>
        <message>
            <source>Kilotonnes</source>
            <extracomment>rsName_emtKilotonnes</extracomment>
            <translation>Kilotonne</translation>
        </message>
        <message>
            <source>Megatonnes</source>
            <extracomment>rsName_emtMegatonnes</extracomment>
            <translation>Megatonne</translation>
        </message>
        <message>
            <source>Gigatonnes</source>
            <extracomment>rsName_emtGigatonnes</extracomment>
            <translation>Gigatonne</translation>
        </message>
        <message>
            <source>Femtograms</source>
            <extracomment>rsName_emtFemtograms</extracomment>
            <translation>Femtogramm</translation>
        </message>
        <message>
            <source>Earth Masses</source>
            <extracomment>rsName_emtEarthMasses</extracomment>
            <translation>Erdmasse</translation>
        </message>
        <message>
            <source>Ping Pong Ball</source>
            <extracomment>rsName_emtPingPongBallMasses</extracomment>
            <translation>Tischtennisball</translation>
        </message>
        <message>
            <source>Proton Mass Units</source>
            <extracomment>rsName_emtProtonMassUnits</extracomment>
            <translation>Protonenmasse</translation>
        </message>
        <message>
            <source>Electron Mass Units</source>
            <extracomment>rsName_emtElectronMassUnits</extracomment>
            <translation>Elektronenmasse</translation>
        </message>
        <message>
            <source>Neutron Mass Units</source>
            <extracomment>rsName_emtNeutronMassUnits</extracomment>
            <translation>Neutronenmasse</translation>
        </message>
        <message>
            <source>Atomic Mass Units</source>
            <extracomment>rsName_emtAtomicMassUnits</extracomment>
            <translation>Atomare Masseneinheit</translation>
        </message>
        <message>
            <source>Planck Masses</source>
            <extracomment>rsName_emtPlanckMasses</extracomment>
            <translation>Planckmasse</translation>
        </message>
        <message>
            <source>Luna Masses</source>
            <extracomment>rsName_emtLunaMasses</extracomment>
            <translation>Mondmasse</translation>
        </message>
        <message>
            <source>Mars Masses</source>
            <extracomment>rsName_emtMarsMasses</extracomment>
            <translation>Marsmasse</translation>
        </message>
        <message>
            <source>Venus Masses</source>
            <extracomment>rsName_emtVenusMasses</extracomment>
            <translation>Venusmasse</translation>
        </message>
        <message>
            <source>Dàn (1930)</source>
            <extracomment>rsName_emtDanMass1930</extracomment>
            <translation>Dàn (1930)</translation>
        </message>
        <message>
            <source>Jin (1930)</source>
            <extracomment>rsName_emtJinMass1930</extracomment>
            <translation>Jin (1930)</translation>
        </message>
        <message>
            <source>Liang (1930)</source>
            <extracomment>rsName_emtLiangMass1930</extracomment>
            <translation>Liang (1930)</translation>
        </message>
        <message>
            <source>Mercury Masses</source>
            <extracomment>rsName_emtMercuryMasses</extracomment>
            <translation>Merkurmasse</translation>
        </message>
        <message>
            <source>Jupiter Masses</source>
            <extracomment>rsName_emtJupiterMasses</extracomment>
            <translation>Jupitermasse</translation>
        </message>
        <message>
            <source>Saturn Masses</source>
            <extracomment>rsName_emtSaturnMasses</extracomment>
            <translation>Saturnmasse</translation>
        </message>
        <message>
            <source>Uranus Masses</source>
            <extracomment>rsName_emtUranusMasses</extracomment>
            <translation>Uranusmasse</translation>
        </message>
        <message>
            <source>Neptune Masses</source>
            <extracomment>rsName_emtNeptuneMasses</extracomment>
            <translation>Neptunmasse</translation>
        </message>
        <message>
            <source>Ounces, Metric (25g)</source>
            <extracomment>rsName_emtOuncesMetric25</extracomment>
            <translation>Unze, metrisch (25 g)</translation>
        </message>
        <message>
            <source>Ounces, Metric (30g)</source>
            <extracomment>rsName_emtOuncesMetric30</extracomment>
            <translation>Unze, metrisch (30 g)</translation>
        </message>
        <message>
            <source>Solar Masses</source>
            <extracomment>rsName_emtSolarMasses</extracomment>
            <translation>Sonnenmasse</translation>
        </message>
        <message>
            <source>Cubic Metres</source>
            <extracomment>rsName_evtCubicMetres</extracomment>
            <translation>Kubikmeter</translation>
        </message>
        <message>
            <source>Litres</source>
            <extracomment>rsName_evtLitres</extracomment>
            <translation>Liter</translation>
        </message>
        <message>
            <source>Millilitres</source>
            <extracomment>rsName_evtMillilitres</extracomment>
            <translation>Milliliter</translation>
        </message>
        <message>
            <source>Kilolitres</source>
            <extracomment>rsName_evtKilolitres</extracomment>
            <translation>Kiloliter</translation>
        </message>
        <message>
            <source>Decilitres</source>
            <extracomment>rsName_evtDeciLitres</extracomment>
            <translation>Deziliter</translation>
        </message>
        <message>
            <source>Centilitres</source>
            <extracomment>rsName_evtCentilitres</extracomment>
            <translation>Zentiliter</translation>
        </message>
        <message>
            <source>Hectolitres</source>
            <extracomment>rsName_evtHectolitres</extracomment>
            <translation>Hektoliter</translation>
        </message>
        <message>
            <source>Microlitres</source>
            <extracomment>rsName_evtMicrolitres</extracomment>
            <translation>Mikroliter</translation>
        </message>
        <message>
            <source>Pints (UK)</source>
            <extracomment>rsName_evtPintsUK</extracomment>
            <translation>Pint (brit.)</translation>
        </message>
        <message>
            <source>Pints (US)</source>
            <extracomment>rsName_evtPintsUS</extracomment>
            <translation>Pint (US)</translation>
        </message>
        <message>
            <source>Quarts (UK)</source>
            <extracomment>rsName_evtQuartsUK</extracomment>
            <translation>Quart (brit.)</translation>
        </message>
        <message>
            <source>Quarts (US)</source>
            <extracomment>rsName_evtQuartsUS</extracomment>
            <translation>Quart (US)</translation>
        </message>
        <message>
            <source>Gallons (UK)</source>
            <extracomment>rsName_evtGallonsUK</extracomment>
            <translation>Gallone (brit.)</translation>
        </message>
        <message>
            <source>Gallons (US)</source>
            <extracomment>rsName_evtGallonsUS</extracomment>
            <translation>Gallone (US)</translation>
        </message>
        <message>
            <source>Gills (UK)</source>
            <extracomment>rsName_evtGillsUK</extracomment>
            <translation>Gill (brit.)</translation>
        </message>
        <message>
            <source>Gills (US)</source>
            <extracomment>rsName_evtGillsUS</extracomment>
            <translation>Gill (US)</translation>
        </message>
        <message>
            <source>Fluid Ounces (UK)</source>
            <extracomment>rsName_evtFluidOuncesUK</extracomment>
            <translation>Flüssigunze (brit.)</translation>
        </message>
        <message>
            <source>Fluid Ounces (US)</source>
            <extracomment>rsName_evtFluidOuncesUS</extracomment>
            <translation>Flüssigunze (US)</translation>
        </message>
        <message>
            <source>Fluid Drams (UK)</source>
            <extracomment>rsName_evtFluidDramsUK</extracomment>
            <translation>Flüssigdram (brit.)</translation>
        </message>
        <message>
            <source>Fluid Drams (US)</source>
            <extracomment>rsName_evtFluidDramsUS</extracomment>
            <translation>Flüssigdram (US)</translation>
        </message>
        <message>
            <source>Teaspoons (US)</source>
            <extracomment>rsName_evtTeaspoonUS</extracomment>
            <translation>Teelöffel (US)</translation>
        </message>
        <message>
            <source>Teaspoons (UK)</source>
            <extracomment>rsName_evtTeaspoonUK</extracomment>
            <translation>Teelöffel (brit.)</translation>
        </message>
        <message>
            <source>Teaspoons (Metric)</source>
            <extracomment>rsName_evtTeaspoonMetric</extracomment>
            <translation>Teelöffel (metrisch)</translation>
        </message>
        <message>
            <source>Dessertspoons (US)</source>
            <extracomment>rsName_evtDessertspoonUS</extracomment>
            <translation>Dessertlöffel (US)</translation>
        </message>
        <message>
            <source>Dessertspoons (UK)</source>
            <extracomment>rsName_evtDessertspoonUK</extracomment>
            <translation>Dessertlöffel (brit.)</translation>
        </message>
        <message>
            <source>Dessertspoons (Metric)</source>
            <extracomment>rsName_evtDessertspoonMetric</extracomment>
            <translation>Dessertlöffel (metrisch)</translation>
        </message>
        <message>
            <source>Tablespoons (US)</source>
            <extracomment>rsName_evtTablespoonUS</extracomment>
            <translation>Esslöffel (US)</translation>
        </message>
        <message>
            <source>Tablespoons (UK)</source>
            <extracomment>rsName_evtTablespoonUK</extracomment>
            <translation>Esslöffel (brit.)</translation>
        </message>
        <message>
            <source>Tablespoons (Metric Australia)</source>
            <extracomment>rsName_evtTablespoonMetricAus</extracomment>
            <translation>Esslöffel (metrisch, Australien)</translation>
        </message>
        <message>
            <source>Tablespoons (Metric Other)</source>
            <extracomment>rsName_evtTablespoonMetricOther</extracomment>
            <translation>Esslöffel (metrisch, sonst)</translation>
        </message>
        <message>
            <source>Cubic Centimetres</source>
            <extracomment>rsName_evtCubicCentimetres</extracomment>
            <translation>Kubikzentimeter</translation>
        </message>
        <message>
            <source>Cubic Millimetres</source>
            <extracomment>rsName_evtCubicMillimetres</extracomment>
            <translation>Kubikmillimeter</translation>
        </message>
        <message>
            <source>Cubic Decimetres</source>
            <extracomment>rsName_evtCubicDecimetres</extracomment>
            <translation>Kubikdezimeter</translation>
        </message>
        <message>
            <source>Pints (UK Dry)</source>
            <extracomment>rsName_evtPintsUKDry</extracomment>
            <translation>Pint (brit., trocken)</translation>
        </message>
        <message>
            <source>Pints (US Dry)</source>
            <extracomment>rsName_evtPintsUSDry</extracomment>
            <translation>Pint (US, trocken)</translation>
        </message>
        <message>
            <source>Quarts (UK Dry)</source>
            <extracomment>rsName_evtQuartsUKDry</extracomment>
            <translation>Quart (brit., trocken)</translation>
        </message>
        <message>
            <source>Quarts (US Dry)</source>
            <extracomment>rsName_evtQuartsUSDry</extracomment>
            <translation>Quart (US, trocken)</translation>
        </message>
        <message>
            <source>Gallons (UK Dry)</source>
            <extracomment>rsName_evtGallonsUKdry</extracomment>
            <translation>Gallone (brit., trocken)</translation>
        </message>
        <message>
            <source>Gallons (US Dry)</source>
            <extracomment>rsName_evtGallonsUSDry</extracomment>
            <translation>Gallone (US, trocken)</translation>
        </message>
        <message>
            <source>Pecks (UK)</source>
            <extracomment>rsName_evtPecksUK</extracomment>
            <translation>Peck (brit.)</translation>
        </message>
        <message>
            <source>Pecks (US)</source>
            <extracomment>rsName_evtPecksUS</extracomment>
            <translation>Peck (US)</translation>
        </message>
        <message>
            <source>Bushels (UK)</source>
            <extracomment>rsName_evtBushellsUK</extracomment>
            <translation>Bushel (brit.)</translation>
        </message>
        <message>
            <source>Bushels (US)</source>
            <extracomment>rsName_evtBushellsUS</extracomment>
            <translation>Bushel (US)</translation>
        </message>
        <message>
            <source>Barrels (Oil)</source>
            <extracomment>rsName_evtBarrelsOil</extracomment>
            <translation>Barrel (Öl)</translation>
        </message>
        <message>
            <source>Barrels (Dry)</source>
            <extracomment>rsName_evtBarrelsDry</extracomment>
            <translation>Barrel (trocken)</translation>
        </message>
        <message>
            <source>Barrels (Liquid)</source>
            <extracomment>rsName_evtBarrelsLiquid</extracomment>
            <translation>Barrel (flüssig)</translation>
        </message>
        <message>
            <source>Cubic Inches</source>
            <extracomment>rsName_evtCubicInches</extracomment>
            <translation>Kubikzoll</translation>
        </message>
        <message>
            <source>Cubic Fathoms</source>
            <extracomment>rsName_evtCubicFathoms</extracomment>
            <translation>Kubikfaden</translation>
        </message>
        <message>
            <source>Cubic Feet</source>
            <extracomment>rsName_evtCubicFeet</extracomment>
            <translation>Kubikfuß</translation>
        </message>
        <message>
            <source>Cubic Yards</source>
            <extracomment>rsName_evtCubicYards</extracomment>
            <translation>Kubikyard</translation>
        </message>
        <message>
            <source>Cups (Metric)</source>
            <extracomment>rsName_evtCupsMetric</extracomment>
            <translation>Tasse (metrisch)</translation>
        </message>
        <message>
            <source>Cups (US)</source>
            <extracomment>rsName_evtCupsUS</extracomment>
            <translation>Tasse (US)</translation>
        </message>
        <message>
            <source>MegaGallons (UK)</source>
            <extracomment>rsName_evtMegaGallonsUK</extracomment>
            <translation>Megagallone (brit.)</translation>
        </message>
        <message>
            <source>Megagallons (US)</source>
            <extracomment>rsName_evtMegaGallonsUS</extracomment>
            <translation>Megagallone (US)</translation>
        </message>
        <message>
            <source>Acre-Feet</source>
            <extracomment>rsName_evtAcreFeet</extracomment>
            <translation>Acre-Fuß</translation>
        </message>
        <message>
            <source>Acre-Inches</source>
            <extracomment>rsName_evtAcreInches</extracomment>
            <translation>Acre-Zoll</translation>
        </message>
        <message>
            <source>Cubic Microns</source>
            <extracomment>rsName_evtCubicMicrons</extracomment>
            <translation>Kubikmikron</translation>
        </message>
        <message>
            <source>Congii (UK)</source>
            <extracomment>rsName_evtCongiiUK</extracomment>
            <translation>Congius (brit.)</translation>
        </message>
        <message>
            <source>Acetabula</source>
            <extracomment>rsName_evtAcetabula</extracomment>
            <translation>Acetabulum</translation>
        </message>
        <message>
            <source>Heminae</source>
            <extracomment>rsName_evtHeminae</extracomment>
            <translation>Hemina</translation>
        </message>
        <message>
            <source>Sextarii</source>
            <extracomment>rsName_evtSextarii</extracomment>
            <translation>Sextarius</translation>
        </message>
        <message>
            <source>Congii (Roman)</source>
            <extracomment>rsName_evtCongii</extracomment>
            <translation>Congius (römisch)</translation>
        </message>
        <message>
            <source>Ligulae</source>
            <extracomment>rsName_evtLigulae</extracomment>
            <translation>Ligula</translation>
        </message>
        <message>
            <source>Urnae</source>
            <extracomment>rsName_evtUrnae</extracomment>
            <translation>Urna</translation>
        </message>
        <message>
            <source>Amphorae (Roman)</source>
            <extracomment>rsName_evtRomanAmphorae</extracomment>
            <translation>Amphore (römisch)</translation>
        </message>
        <message>
            <source>Modii</source>
            <extracomment>rsName_evtModii</extracomment>
            <translation>Modius</translation>
        </message>
        <message>
            <source>Super Feet</source>
            <extracomment>rsName_evtSuperFeet</extracomment>
            <translation>Superfuß</translation>
        </message>
        <message>
            <source>Board Feet</source>
            <extracomment>rsName_evtBoardFeet</extracomment>
            <translation>Boardfuß</translation>
        </message>
        <message>
            <source>Cups (US 12 Oz)</source>
            <extracomment>rsName_evtCupsUS12</extracomment>
            <translation>Tasse (US, 12 oz)</translation>
        </message>
        <message>
            <source>Cups (Canada)</source>
            <extracomment>rsName_evtCupsCanada</extracomment>
            <translation>Tasse (Kanada)</translation>
        </message>
        <message>
            <source>Cups (UK)</source>
            <extracomment>rsName_evtCupsUK</extracomment>
            <translation>Tasse (brit.)</translation>
        </message>
        <message>
            <source>Barrels (US Beer)</source>
            <extracomment>rsName_evtBarrelsBeerUS</extracomment>
            <translation>Barrel (US-Bier)</translation>
        </message>
        <message>
            <source>Barrels (UK Beer)</source>
            <extracomment>rsName_evtBarrelsBeerUK</extracomment>
            <translation>Barrel (brit. Bier)</translation>
        </message>
        <message>
            <source>Barrels (UK Wine)</source>
            <extracomment>rsName_evtBarrelsWineUK</extracomment>
            <translation>Barrel (brit. Wein)</translation>
        </message>
        <message>
            <source>Kegs (US Beer)</source>
            <extracomment>rsName_evtKegsBeerUS</extracomment>
            <translation>Fass (US-Bier)</translation>
        </message>
        <message>
            <source>Kegs (US Wine)</source>
            <extracomment>rsName_evtKegsWineUS</extracomment>
            <translation>Fass (US-Wein)</translation>
        </message>
        <message>
            <source>Kegs (UK Beer)</source>
            <extracomment>rsName_evtKegsBeerUK</extracomment>
            <translation>Fass (brit. Bier)</translation>
        </message>
        <message>
            <source>Kegs (25 Litre)</source>
            <extracomment>rsName_evtKegs25</extracomment>
            <translation>Fass (25 Liter)</translation>
        </message>
        <message>
            <source>Kegs (50 Litre)</source>
            <extracomment>rsName_evtKegs50</extracomment>
            <translation>Fass (50 Liter)</translation>
        </message>
        <message>
            <source>Firkins (Beer)</source>
            <extracomment>rsName_evtFirkinsBeer</extracomment>
            <translation>Firkin (Bier)</translation>
        </message>
        <message>
            <source>Kilderkins (Beer)</source>
            <extracomment>rsName_evtKilderkinsBeer</extracomment>
            <translation>Kilderkin (Bier)</translation>
        </message>
        <message>
            <source>Hogsheads (Beer)</source>
            <extracomment>rsName_evtHogsheadsBeer</extracomment>
            <translation>Hogshead (Bier)</translation>
        </message>
        <message>
            <source>Drops (Water)</source>
            <extracomment>rsName_evtDropsWater</extracomment>
            <translation>Tropfen (Wasser)</translation>
        </message>
        <message>
            <source>Drops (Thick Fluid)</source>
            <extracomment>rsName_evtDropsThick</extracomment>
            <translation>Tropfen (zähe Flüssigkeit)</translation>
        </message>
        <message>
            <source>Decalitres</source>
            <extracomment>rsName_evtDecalitres</extracomment>
            <translation>Dekaliter</translation>
        </message>
        <message>
            <source>Cubic Kilometres</source>
            <extracomment>rsName_evtCubicKilometres</extracomment>
            <translation>Kubikkilometer</translation>
        </message>
        <message>
            <source>Cubic Miles</source>
            <extracomment>rsName_evtCubicMiles</extracomment>
            <translation>Kubikmeile</translation>
        </message>
        <message>
            <source>Earth Volumes</source>
            <extracomment>rsName_evtEarthVolumes</extracomment>
            <translation>Erdvolumen</translation>
        </message>
        <message>
            <source>Luna Volumes</source>
            <extracomment>rsName_evtLunaVolumes</extracomment>
            <translation>Mondvolumen</translation>
        </message>
        <message>
            <source>Mars Volumes</source>
            <extracomment>rsName_evtMarsVolumes</extracomment>
            <translation>Marsvolumen</translation>
        </message>
        <message>
            <source>Venus Volumes</source>
            <extracomment>rsName_evtVenusVolumes</extracomment>
            <translation>Venusvolumen</translation>
        </message>
        <message>
            <source>Sheng (1930)</source>
            <extracomment>rsName_evtShengVol1930</extracomment>
            <translation>Sheng (1930)</translation>
        </message>
        <message>
            <source>Mercury Volumes</source>
            <extracomment>rsName_evtMercuryVolumes</extracomment>
            <translation>Merkurvolumen</translation>
        </message>
        <message>
            <source>Jupiter Volumes</source>
            <extracomment>rsName_evtJupiterVolumes</extracomment>
            <translation>Jupitervolumen</translation>
        </message>
        <message>
            <source>Saturn Volumes</source>
            <extracomment>rsName_evtSaturnVolumes</extracomment>
            <translation>Saturnvolumen</translation>
        </message>
        <message>
            <source>Uranus Volumes</source>
            <extracomment>rsName_evtUranusVolumes</extracomment>
            <translation>Uranusvolumen</translation>
        </message>
        <message>
            <source>Neptune Volumes</source>
            <extracomment>rsName_evtNeptuneVolumes</extracomment>
            <translation>Neptunvolumen</translation>
        </message>
        <message>
            <source>Fluid Ounces, Mertic (25ml)</source>
            <extracomment>rsName_evtFluidOuncesMetric25</extracomment>
            <translation>Flüssigunze, metrisch (25 ml)</translation>
        </message>
        <message>
            <source>Fluid Ounces, Mertic (30ml)</source>
            <extracomment>rsName_evtFluidOuncesMetric30</extracomment>
            <translation>Flüssigunze, metrisch (30 ml)</translation>
        </message>
        <message>
            <source>Solar Volumes</source>
            <extracomment>rsName_evtSolarVolumes</extracomment>
            <translation>Sonnenvolumen</translation>
        </message>
        <message>
            <source>Square Metres</source>
            <extracomment>rsName_eatSqMetres</extracomment>
            <translation>Quadratmeter</translation>
        </message>
        <message>
            <source>Square Centimetres</source>
            <extracomment>rsName_eatSqCentimetres</extracomment>
            <translation>Quadratzentimeter</translation>
        </message>
        <message>
            <source>Square Millimetres</source>
            <extracomment>rsName_eatSqMillimetres</extracomment>
            <translation>Quadratmillimeter</translation>
        </message>
        <message>
            <source>Square Kilometres</source>
            <extracomment>rsName_eatSqKilometres</extracomment>
            <translation>Quadratkilometer</translation>
        </message>
        <message>
            <source>Square Inches</source>
            <extracomment>rsName_eatSqInches</extracomment>
            <translation>Quadratzoll</translation>
        </message>
        <message>
            <source>Square Feet</source>
            <extracomment>rsName_eatSqFeet</extracomment>
            <translation>Quadratfuß</translation>
        </message>
        <message>
            <source>Square Yards</source>
            <extracomment>rsName_eatSqYards</extracomment>
            <translation>Quadratyard</translation>
        </message>
        <message>
            <source>Square Miles</source>
            <extracomment>rsName_eatSqMiles</extracomment>
            <translation>Quadratmeile</translation>
        </message>
        <message>
            <source>Hectares</source>
            <extracomment>rsName_eatHectares</extracomment>
            <translation>Hektar</translation>
        </message>
        <message>
            <source>Ares</source>
            <extracomment>rsName_eatAres</extracomment>
            <translation>Ar</translation>
        </message>
        <message>
            <source>Acres</source>
            <extracomment>rsName_eatAcres</extracomment>
            <translation>Acre</translation>
        </message>
        <message>
            <source>Roods</source>
            <extracomment>rsName_eatRoods</extracomment>
            <translation>Rood</translation>
        </message>
        <message>
            <source>Dunams</source>
            <extracomment>rsName_eatDunams</extracomment>
            <translation>Dunam</translation>
        </message>
        <message>
            <source>Tsubo</source>
            <extracomment>rsName_eatTsubo</extracomment>
            <translation>Tsubo</translation>
        </message>
        <message>
            <source>Tatami</source>
            <extracomment>rsName_eatTatami</extracomment>
            <translation>Tatami</translation>
        </message>
        <message>
            <source>Square Microns</source>
            <extracomment>rsName_eatSqMicrons</extracomment>
            <translation>Quadratmikron</translation>
        </message>
        <message>
            <source>Square Chains</source>
            <extracomment>rsName_eatSqChains</extracomment>
            <translation>Quadratchain</translation>
        </message>
        <message>
            <source>Square Links</source>
            <extracomment>rsName_eatSqLinks</extracomment>
            <translation>Quadratlink</translation>
        </message>
        <message>
            <source>Square Rods</source>
            <extracomment>rsName_eatSqRods</extracomment>
            <translation>Quadratrute</translation>
        </message>
        <message>
            <source>Square Poles</source>
            <extracomment>rsName_eatSqPoles</extracomment>
            <translation>Quadratpole</translation>
        </message>
        <message>
            <source>Square Perches</source>
            <extracomment>rsName_eatSqPerches</extracomment>
            <translation>Quadratperch</translation>
        </message>
        <message>
            <source>Square Furlongs</source>
            <extracomment>rsName_eatSqFurlongs</extracomment>
            <translation>Quadratfurlong</translation>
        </message>
        <message>
            <source>Square Fathoms</source>
            <extracomment>rsName_eatSqFathoms</extracomment>
            <translation>Quadratfaden</translation>
        </message>
        <message>
            <source>Sections</source>
            <extracomment>rsName_eatSections</extracomment>
            <translation>Section</translation>
        </message>
        <message>
            <source>Townships</source>
            <extracomment>rsName_eatTownships</extracomment>
            <translation>Township</translation>
        </message>
        <message>
            <source>Pyong (Korea)</source>
            <extracomment>rsName_eatPyong</extracomment>
            <translation>Pyeong (Korea)</translation>
        </message>
        <message>
            <source>Ping (Taiwan)</source>
            <extracomment>rsName_eatPing</extracomment>
            <translation>Ping (Taiwan)</translation>
        </message>
        <message>
            <source>Wah (Thai)</source>
            <extracomment>rsName_eatWah</extracomment>
            <translation>Wah (Thailand)</translation>
        </message>
        <message>
            <source>Ngan (Thai)</source>
            <extracomment>rsName_eatNgan</extracomment>
            <translation>Ngan (Thailand)</translation>
        </message>
        <message>
            <source>Rai (Thai)</source>
            <extracomment>rsName_eatRai</extracomment>
            <translation>Rai (Thailand)</translation>
        </message>
        <message>
            <source>Cents (India)</source>
            <extracomment>rsName_eatCents</extracomment>
            <translation>Cent (Indien)</translation>
        </message>
        <message>
            <source>Square Mils</source>
            <extracomment>rsName_eatSqMils</extracomment>
            <translation>Quadratmil</translation>
        </message>
        <message>
            <source>Circular Mils</source>
            <extracomment>rsName_eatCircularMils</extracomment>
            <translation>Circular-Mil</translation>
        </message>
        <message>
            <source>Centiares</source>
            <extracomment>rsName_eatCentiares</extracomment>
            <translation>Zentiar</translation>
        </message>
        <message>
            <source>Deciares</source>
            <extracomment>rsName_eatDeciares</extracomment>
            <translation>Deziar</translation>
        </message>
        <message>
            <source>Decares</source>
            <extracomment>rsName_eatDecares</extracomment>
            <translation>Dekar</translation>
        </message>
        <message>
            <source>Square Micrometres</source>
            <extracomment>rsName_eatSqMicrometres</extracomment>
            <translation>Quadratmikrometer</translation>
        </message>
        <message>
            <source>Square Nanometres</source>
            <extracomment>rsName_eatSqNanometres</extracomment>
            <translation>Quadratnanometer</translation>
        </message>
        <message>
            <source>Square Picometres</source>
            <extracomment>rsName_eatSqPicometres</extracomment>
            <translation>Quadratpikometer</translation>
        </message>
        <message>
            <source>Square Femtometres</source>
            <extracomment>rsName_eatSqFemtometres</extracomment>
            <translation>Quadratfemtometer</translation>
        </message>
        <message>
            <source>Square Feet (US Survey)</source>
            <extracomment>rsName_eatSqFeetUSSurvey</extracomment>
            <translation>Quadratfuß (US-Vermessung)</translation>
        </message>
        <message>
            <source>Square Inches (US Survey)</source>
            <extracomment>rsName_eatSqInchesUSSurvey</extracomment>
            <translation>Quadratzoll (US-Vermessung)</translation>
        </message>
        <message>
            <source>Square Miles (US Survey)</source>
            <extracomment>rsName_eatSqMilesUSSurvey</extracomment>
            <translation>Quadratmeile (US-Vermessung)</translation>
        </message>
        <message>
            <source>Acres (US Survey)</source>
            <extracomment>rsName_eatAcresUSSurvey</extracomment>
            <translation>Acre (US-Vermessung)</translation>
        </message>
        <message>
            <source>Barns</source>
            <extracomment>rsName_eatBarns</extracomment>
            <translation>Barn</translation>
        </message>
        <message>
            <source>Football Fields (CAN)</source>
            <extracomment>rsName_eatFootballCan</extracomment>
            <translation>Footballfeld (CAN)</translation>
        </message>
        <message>
            <source>Olympic Soccer Fields</source>
            <extracomment>rsName_eatOlympicSoccer</extracomment>
            <translation>Olympisches Fußballfeld</translation>
        </message>
        <message>
            <source>Football Fields (US)</source>
            <extracomment>rsName_eatFootballUS</extracomment>
            <translation>Footballfeld (US)</translation>
        </message>
        <message>
            <source>Homesteads</source>
            <extracomment>rsName_eatHomesteads</extracomment>
            <translation>Homestead</translation>
        </message>
        <message>
            <source>Planck Areas</source>
            <extracomment>rsName_eatPlanckAreas</extracomment>
            <translation>Planckfläche</translation>
        </message>
        <message>
            <source>Paper A3</source>
            <extracomment>rsName_eatPaperA3</extracomment>
            <translation>Papier-A3</translation>
        </message>
        <message>
            <source>Paper A4</source>
            <extracomment>rsName_eatPaperA4</extracomment>
            <translation>Papier-A4</translation>
        </message>
        <message>
            <source>Paper A5</source>
            <extracomment>rsName_eatPaperA5</extracomment>
            <translation>Papier-A5</translation>
        </message>
        <message>
            <source>Paper Legal</source>
            <extracomment>rsName_eatPaperLegal</extracomment>
            <translation>Papier-Legal</translation>
        </message>
        <message>
            <source>Paper Letter</source>
            <extracomment>rsName_eatPaperLetter</extracomment>
            <translation>Papier-Letter</translation>
        </message>
        <message>
            <source>Paper Foolscap</source>
            <extracomment>rsName_eatPaperFoolscap</extracomment>
            <translation>Papier-Foolscap</translation>
        </message>
        <message>
            <source>Mu (1930)</source>
            <extracomment>rsName_eatMuArea1930</extracomment>
            <translation>Mu (1930)</translation>
        </message>
        <message>
            <source>Qing (1930)</source>
            <extracomment>rsName_eatQingArea1930</extracomment>
            <translation>Qing (1930)</translation>
        </message>
        <message>
            <source>Pascals</source>
            <extracomment>rsName_eptPascals</extracomment>
            <translation>Pascal</translation>
        </message>
        <message>
            <source>Hectopascals</source>
            <extracomment>rsName_eptHectopascals</extracomment>
            <translation>Hektopascal</translation>
        </message>
        <message>
            <source>Kilopascals</source>
            <extracomment>rsName_eptKilopascals</extracomment>
            <translation>Kilopascal</translation>
        </message>
        <message>
            <source>Megapascals</source>
            <extracomment>rsName_eptMegapascals</extracomment>
            <translation>Megapascal</translation>
        </message>
        <message>
            <source>Bars</source>
            <extracomment>rsName_eptBars</extracomment>
            <translation>Bar</translation>
        </message>
        <message>
            <source>Millibars</source>
            <extracomment>rsName_eptMillibars</extracomment>
            <translation>Millibar</translation>
        </message>
        <message>
            <source>Hectobars</source>
            <extracomment>rsName_eptHectobars</extracomment>
            <translation>Hektobar</translation>
        </message>
        <message>
            <source>Atmospheres</source>
            <extracomment>rsName_eptAtmospheres</extracomment>
            <translation>Atmosphäre</translation>
        </message>
        <message>
            <source>Millimetres of Mercury at 0°C</source>
            <extracomment>rsName_eptMillimetresOfMercury0C</extracomment>
            <translation>Millimeter Quecksilbersäule bei 0 °C</translation>
        </message>
        <message>
            <source>Centimetres of Mercury at 0°C</source>
            <extracomment>rsName_eptCentimetresOfMercury0C</extracomment>
            <translation>Zentimeter Quecksilbersäule bei 0 °C</translation>
        </message>
        <message>
            <source>Inches of Mercury at 0°C</source>
            <extracomment>rsName_eptInchesOfMercury0C</extracomment>
            <translation>Zoll Quecksilbersäule bei 0 °C</translation>
        </message>
        <message>
            <source>Torrs</source>
            <extracomment>rsName_eptTorrs</extracomment>
            <translation>Torr</translation>
        </message>
        <message>
            <source>Pounds per Sq Inch</source>
            <extracomment>rsName_eptPoundsPerSqInch</extracomment>
            <translation>Pfund pro Quadratzoll</translation>
        </message>
        <message>
            <source>PSI</source>
            <extracomment>rsName_eptPSI</extracomment>
            <translation>psi</translation>
        </message>
        <message>
            <source>Pounds per Sq Foot</source>
            <extracomment>rsName_eptPoundsPerSqFoot</extracomment>
            <translation>Pfund pro Quadratfuß</translation>
        </message>
        <message>
            <source>Pounds per Sq Yard</source>
            <extracomment>rsName_eptPoundsPerSqYard</extracomment>
            <translation>Pfund pro Quadratyard</translation>
        </message>
        <message>
            <source>Tons (Short) per Sq Foot</source>
            <extracomment>rsName_eptShortTonsPerSqFoot</extracomment>
            <translation>Short Ton pro Quadratfuß</translation>
        </message>
        <message>
            <source>Tons (Short) per Sq Inch</source>
            <extracomment>rsName_eptShortTonsPerSqInch</extracomment>
            <translation>Short Ton pro Quadratzoll</translation>
        </message>
        <message>
            <source>Tons (Long) per Sq Foot</source>
            <extracomment>rsName_eptTonsPerSqFoot</extracomment>
            <translation>Long Ton pro Quadratfuß</translation>
        </message>
        <message>
            <source>Tons (Long) per Sq Inch</source>
            <extracomment>rsName_eptTonsPerSqInch</extracomment>
            <translation>Long Ton pro Quadratzoll</translation>
        </message>
        <message>
            <source>Dynes per Sq Centimetre</source>
            <extracomment>rsName_eptDynesPerSqCentimetre</extracomment>
            <translation>Dyn pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Dynes per Sq Metre</source>
            <extracomment>rsName_eptDynesPerSqMetre</extracomment>
            <translation>Dyn pro Quadratmeter</translation>
        </message>
        <message>
            <source>Grams per Sq Centimetre</source>
            <extracomment>rsName_eptGramsPerSqCentimetre</extracomment>
            <translation>Gramm pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Grams per Sq Metre</source>
            <extracomment>rsName_eptGramsPerSqMetre</extracomment>
            <translation>Gramm pro Quadratmeter</translation>
        </message>
        <message>
            <source>Kilograms per Sq Centimetre</source>
            <extracomment>rsName_eptKilogramsPerSqCentimetre</extracomment>
            <translation>Kilogramm pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Kilograms per Sq Metre</source>
            <extracomment>rsName_eptKilogramsPerSqMetre</extracomment>
            <translation>Kilogramm pro Quadratmeter</translation>
        </message>
        <message>
            <source>Tonnes per Sq Centimetre</source>
            <extracomment>rsName_eptTonnesPerSqCentimetre</extracomment>
            <translation>Tonne pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Tonnes per Sq Metre</source>
            <extracomment>rsName_eptTonnesPerSqMetre</extracomment>
            <translation>Tonne pro Quadratmeter</translation>
        </message>
        <message>
            <source>Newtons per Sq Metre</source>
            <extracomment>rsName_eptNewtonsPerSqMetre</extracomment>
            <translation>Newton pro Quadratmeter</translation>
        </message>
        <message>
            <source>Millimetres of Water at 4°C</source>
            <extracomment>rsName_eptMillimetresOfWater4C</extracomment>
            <translation>Millimeter Wassersäule bei 4 °C</translation>
        </message>
        <message>
            <source>Centimetres of Water at 4°C</source>
            <extracomment>rsName_eptCentimetresOfWater4C</extracomment>
            <translation>Zentimeter Wassersäule bei 4 °C</translation>
        </message>
        <message>
            <source>Metres of Water at 4°C</source>
            <extracomment>rsName_eptMetresOfWater4C</extracomment>
            <translation>Meter Wassersäule bei 4 °C</translation>
        </message>
        <message>
            <source>Feet of Water at 4°C</source>
            <extracomment>rsName_eptFeetOfWater4C</extracomment>
            <translation>Fuß Wassersäule bei 4 °C</translation>
        </message>
        <message>
            <source>Feet of Sea Water</source>
            <extracomment>rsName_eptFeetOfSeaWater</extracomment>
            <translation>Fuß Meerwassersäule</translation>
        </message>
        <message>
            <source>Metres of Sea Water</source>
            <extracomment>rsName_eptMetresOfSeaWater</extracomment>
            <translation>Meter Meerwassersäule</translation>
        </message>
        <message>
            <source>Inches of Water at 4°C</source>
            <extracomment>rsName_eptInchesOfWater4C</extracomment>
            <translation>Zoll Wassersäule bei 4 °C</translation>
        </message>
        <message>
            <source>Gigapascals</source>
            <extracomment>rsName_eptGigapascals</extracomment>
            <translation>Gigapascal</translation>
        </message>
        <message>
            <source>Nanonewtons per Sq Micron</source>
            <extracomment>rsName_eptNanonewtonsPerSqMicron</extracomment>
            <translation>Nanonewton pro Quadratmikron</translation>
        </message>
        <message>
            <source>Ounces per Sq Foot</source>
            <extracomment>rsName_eptOuncesPerSqFoot</extracomment>
            <translation>Unze pro Quadratfuß</translation>
        </message>
        <message>
            <source>Ounces per Sq Yard</source>
            <extracomment>rsName_eptOuncesPerSqYard</extracomment>
            <translation>Unze pro Quadratyard</translation>
        </message>
        <message>
            <source>Baryes</source>
            <extracomment>rsName_eptBaryes</extracomment>
            <translation>Barye</translation>
        </message>
        <message>
            <source>Atmospheres (Technical)</source>
            <extracomment>rsName_eptAtmospheresTechnical</extracomment>
            <translation>Atmosphäre (technisch)</translation>
        </message>
        <message>
            <source>Feet of Air (0°C)</source>
            <extracomment>rsName_eptFeetOfAir0C</extracomment>
            <translation>Fuß Luftsäule (0 °C)</translation>
        </message>
        <message>
            <source>Feet of Air (15°C)</source>
            <extracomment>rsName_eptFeetOfAir15C</extracomment>
            <translation>Fuß Luftsäule (15 °C)</translation>
        </message>
        <message>
            <source>Feet of Head</source>
            <extracomment>rsName_eptFeetOfHead</extracomment>
            <translation>Fuß Förderhöhe</translation>
        </message>
        <message>
            <source>Feet of Mercury (0°C)</source>
            <extracomment>rsName_eptFeetOfMercury0C</extracomment>
            <translation>Fuß Quecksilbersäule (0 °C)</translation>
        </message>
        <message>
            <source>Metres Of Head</source>
            <extracomment>rsName_eptMetresOfHead</extracomment>
            <translation>Meter Förderhöhe</translation>
        </message>
        <message>
            <source>Millitorrs</source>
            <extracomment>rsName_eptMillitorrs</extracomment>
            <translation>Millitorr</translation>
        </message>
        <message>
            <source>Micrometres of Mercury at 0°C</source>
            <extracomment>rsName_eptMicrometresOfMercury0C</extracomment>
            <translation>Mikrometer Quecksilbersäule bei 0 °C</translation>
        </message>
        <message>
            <source>Metres per Second</source>
            <extracomment>rsName_evtMetresPerSec</extracomment>
            <translation>Meter pro Sekunde</translation>
        </message>
        <message>
            <source>Metres per Minute</source>
            <extracomment>rsName_evtMetresPerMin</extracomment>
            <translation>Meter pro Minute</translation>
        </message>
        <message>
            <source>Metres per Hour</source>
            <extracomment>rsName_evtMetresPerHr</extracomment>
            <translation>Meter pro Stunde</translation>
        </message>
        <message>
            <source>Centimetres per Second</source>
            <extracomment>rsName_evtCentimetresPerSec</extracomment>
            <translation>Zentimeter pro Sekunde</translation>
        </message>
        <message>
            <source>Centimetres per Minute</source>
            <extracomment>rsName_evtCentimetresPerMin</extracomment>
            <translation>Zentimeter pro Minute</translation>
        </message>
        <message>
            <source>Centimetres per Hour</source>
            <extracomment>rsName_evtCentimetresPerHr</extracomment>
            <translation>Zentimeter pro Stunde</translation>
        </message>
        <message>
            <source>Millimetres per Second</source>
            <extracomment>rsName_evtMillimetresPerSec</extracomment>
            <translation>Millimeter pro Sekunde</translation>
        </message>
        <message>
            <source>Millimetres per Minute</source>
            <extracomment>rsName_evtMillimetresPerMin</extracomment>
            <translation>Millimeter pro Minute</translation>
        </message>
        <message>
            <source>Millimetres per Hour</source>
            <extracomment>rsName_evtMillimetresPerHr</extracomment>
            <translation>Millimeter pro Stunde</translation>
        </message>
        <message>
            <source>Kilometres per Second</source>
            <extracomment>rsName_evtKilometresPerSec</extracomment>
            <translation>Kilometer pro Sekunde</translation>
        </message>
        <message>
            <source>Kilometres per Minute</source>
            <extracomment>rsName_evtKilometresPerMin</extracomment>
            <translation>Kilometer pro Minute</translation>
        </message>
        <message>
            <source>Kilometres per Hour</source>
            <extracomment>rsName_evtKilometresPerHr</extracomment>
            <translation>Kilometer pro Stunde</translation>
        </message>
        <message>
            <source>KPH</source>
            <extracomment>rsName_evtKPH</extracomment>
            <translation>km/h</translation>
        </message>
        <message>
            <source>Miles per Second</source>
            <extracomment>rsName_evtMilesPerSec</extracomment>
            <translation>Meile pro Sekunde</translation>
        </message>
        <message>
            <source>Miles per Minute</source>
            <extracomment>rsName_evtMilesPerMin</extracomment>
            <translation>Meile pro Minute</translation>
        </message>
        <message>
            <source>Miles per Hour</source>
            <extracomment>rsName_evtMilesPerHr</extracomment>
            <translation>Meile pro Stunde</translation>
        </message>
        <message>
            <source>MPH</source>
            <extracomment>rsName_evtMPH</extracomment>
            <translation>mph</translation>
        </message>
        <message>
            <source>Feet per Second</source>
            <extracomment>rsName_evtFeetPerSec</extracomment>
            <translation>Fuß pro Sekunde</translation>
        </message>
        <message>
            <source>Feet per Minute</source>
            <extracomment>rsName_evtFeetPerMin</extracomment>
            <translation>Fuß pro Minute</translation>
        </message>
        <message>
            <source>Feet per Hour</source>
            <extracomment>rsName_evtFeetPerHr</extracomment>
            <translation>Fuß pro Stunde</translation>
        </message>
        <message>
            <source>Knots (UK)</source>
            <extracomment>rsName_evtKnotsUK</extracomment>
            <translation>Knoten (brit.)</translation>
        </message>
        <message>
            <source>Knots (US)</source>
            <extracomment>rsName_evtKnotsUS</extracomment>
            <translation>Knoten (US)</translation>
        </message>
        <message>
            <source>Inches per Second</source>
            <extracomment>rsName_evtInchesPerSec</extracomment>
            <translation>Zoll pro Sekunde</translation>
        </message>
        <message>
            <source>Inches per Minute</source>
            <extracomment>rsName_evtInchesPerMin</extracomment>
            <translation>Zoll pro Minute</translation>
        </message>
        <message>
            <source>Inches per Hour</source>
            <extracomment>rsName_evtInchesPerHr</extracomment>
            <translation>Zoll pro Stunde</translation>
        </message>
        <message>
            <source>Speed of Light</source>
            <extracomment>rsName_evtSpeedOfLight</extracomment>
            <translation>Lichtgeschwindigkeit</translation>
        </message>
        <message>
            <source>Speed of Sound (Dry Air at Sea Level)</source>
            <extracomment>rsName_evtSpeedOfSound</extracomment>
            <translation>Schallgeschwindigkeit (trockene Luft auf Meereshöhe)</translation>
        </message>
        <message>
            <source>Mach</source>
            <extracomment>rsName_evtMach</extracomment>
            <translation>Mach</translation>
        </message>
        <message>
            <source>Microns per Second</source>
            <extracomment>rsName_evtMicronsPerSec</extracomment>
            <translation>Mikron pro Sekunde</translation>
        </message>
        <message>
            <source>Microns per Microsecond</source>
            <extracomment>rsName_evtMicronsPerMicrosecond</extracomment>
            <translation>Mikron pro Mikrosekunde</translation>
        </message>
        <message>
            <source>Yards per Second</source>
            <extracomment>rsName_evtYardsPerSec</extracomment>
            <translation>Yard pro Sekunde</translation>
        </message>
        <message>
            <source>Yards per Minute</source>
            <extracomment>rsName_evtYardsPerMin</extracomment>
            <translation>Yard pro Minute</translation>
        </message>
        <message>
            <source>Yards per Hour</source>
            <extracomment>rsName_evtYardsPerHr</extracomment>
            <translation>Yard pro Stunde</translation>
        </message>
        <message>
            <source>Escape Velocity</source>
            <extracomment>rsName_evtEscapeVelocity</extracomment>
            <translation>Fluchtgeschwindigkeit</translation>
        </message>
        <message>
            <source>Escape Velocity (Luna)</source>
            <extracomment>rsName_evtEscapeVelocityLuna</extracomment>
            <translation>Fluchtgeschwindigkeit (Mond)</translation>
        </message>
        <message>
            <source>Escape Velocity (Mars)</source>
            <extracomment>rsName_evtEscapeVelocityMars</extracomment>
            <translation>Fluchtgeschwindigkeit (Mars)</translation>
        </message>
        <message>
            <source>Escape Velocity (Venus)</source>
            <extracomment>rsName_evtEscapeVelocityVenus</extracomment>
            <translation>Fluchtgeschwindigkeit (Venus)</translation>
        </message>
        <message>
            <source>Escape Velocity (Mercury)</source>
            <extracomment>rsName_evtEscapeVelocityMercury</extracomment>
            <translation>Fluchtgeschwindigkeit (Merkur)</translation>
        </message>
        <message>
            <source>Escape Velocity (Jupiter)</source>
            <extracomment>rsName_evtEscapeVelocityJupiter</extracomment>
            <translation>Fluchtgeschwindigkeit (Jupiter)</translation>
        </message>
        <message>
            <source>Escape Velocity (Saturn)</source>
            <extracomment>rsName_evtEscapeVelocitySaturn</extracomment>
            <translation>Fluchtgeschwindigkeit (Saturn)</translation>
        </message>
        <message>
            <source>Escape Velocity (Uranus)</source>
            <extracomment>rsName_evtEscapeVelocityUranus</extracomment>
            <translation>Fluchtgeschwindigkeit (Uranus)</translation>
        </message>
        <message>
            <source>Escape Velocity (Neptune)</source>
            <extracomment>rsName_evtEscapeVelocityNeptune</extracomment>
            <translation>Fluchtgeschwindigkeit (Neptun)</translation>
        </message>
        <message>
            <source>Escape Velocity (Sun)</source>
            <extracomment>rsName_evtEscapeVelocitySun</extracomment>
            <translation>Fluchtgeschwindigkeit (Sonne)</translation>
        </message>
        <message>
            <source>Metres per Second Squared</source>
            <extracomment>rsName_eatMetresPerSec2</extracomment>
            <translation>Meter pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Centimetres per Second Squared</source>
            <extracomment>rsName_eatCentimetresPerSec2</extracomment>
            <translation>Zentimeter pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Feet per Second Squared</source>
            <extracomment>rsName_eatFeetPerSec2</extracomment>
            <translation>Fuß pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Inches per Second Squared</source>
            <extracomment>rsName_eatInchesPerSec2</extracomment>
            <translation>Zoll pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Gravity</source>
            <extracomment>rsName_eatGravity</extracomment>
            <translation>Erdbeschleunigung</translation>
        </message>
        <message>
            <source>Millimetres per Second Squared</source>
            <extracomment>rsName_eatMillimetresPerSec2</extracomment>
            <translation>Millimeter pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Galileos</source>
            <extracomment>rsName_eatGalileos</extracomment>
            <translation>Galileo</translation>
        </message>
        <message>
            <source>Milligals</source>
            <extracomment>rsName_eatMilligals</extracomment>
            <translation>Milligal</translation>
        </message>
        <message>
            <source>Microgals</source>
            <extracomment>rsName_eatMicrogals</extracomment>
            <translation>Mikrogal</translation>
        </message>
        <message>
            <source>Yards per Second Squared</source>
            <extracomment>rsName_eatYardsPerSec2</extracomment>
            <translation>Yard pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Gravity (Luna)</source>
            <extracomment>rsName_eatGravityLuna</extracomment>
            <translation>Fallbeschleunigung (Mond)</translation>
        </message>
        <message>
            <source>Gravity (Mars)</source>
            <extracomment>rsName_eatGravityMars</extracomment>
            <translation>Fallbeschleunigung (Mars)</translation>
        </message>
        <message>
            <source>Gravity (Venus)</source>
            <extracomment>rsName_eatGravityVenus</extracomment>
            <translation>Fallbeschleunigung (Venus)</translation>
        </message>
        <message>
            <source>Gravity (Mercury)</source>
            <extracomment>rsName_eatGravityMercury</extracomment>
            <translation>Fallbeschleunigung (Merkur)</translation>
        </message>
        <message>
            <source>Gravity (Jupiter)</source>
            <extracomment>rsName_eatGravityJupiter</extracomment>
            <translation>Fallbeschleunigung (Jupiter)</translation>
        </message>
        <message>
            <source>Gravity (Saturn)</source>
            <extracomment>rsName_eatGravitySaturn</extracomment>
            <translation>Fallbeschleunigung (Saturn)</translation>
        </message>
        <message>
            <source>Gravity (Uranus)</source>
            <extracomment>rsName_eatGravityUranus</extracomment>
            <translation>Fallbeschleunigung (Uranus)</translation>
        </message>
        <message>
            <source>Gravity (Neptune)</source>
            <extracomment>rsName_eatGravityNeptune</extracomment>
            <translation>Fallbeschleunigung (Neptun)</translation>
        </message>
        <message>
            <source>Gravity (Sun)</source>
            <extracomment>rsName_eatGravitySun</extracomment>
            <translation>Fallbeschleunigung (Sonne)</translation>
        </message>
        <message>
            <source>Newtons</source>
            <extracomment>rsName_eftNewtons</extracomment>
            <translation>Newton</translation>
        </message>
        <message>
            <source>Millinewtons</source>
            <extracomment>rsName_eftMillinewtons</extracomment>
            <translation>Millinewton</translation>
        </message>
        <message>
            <source>Kilonewtons</source>
            <extracomment>rsName_eftKilonewtons</extracomment>
            <translation>Kilonewton</translation>
        </message>
        <message>
            <source>Meganewtons</source>
            <extracomment>rsName_eftMeganewtons</extracomment>
            <translation>Meganewton</translation>
        </message>
        <message>
            <source>Giganewtons</source>
            <extracomment>rsName_eftGiganewtons</extracomment>
            <translation>Giganewton</translation>
        </message>
        <message>
            <source>Dynes</source>
            <extracomment>rsName_eftDynes</extracomment>
            <translation>Dyn</translation>
        </message>
        <message>
            <source>Kilograms Force</source>
            <extracomment>rsName_eftKilogramsForce</extracomment>
            <translation>Kilogrammkraft</translation>
        </message>
        <message>
            <source>Grams Force</source>
            <extracomment>rsName_eftGramsForce</extracomment>
            <translation>Grammkraft</translation>
        </message>
        <message>
            <source>Pounds Force</source>
            <extracomment>rsName_eftPoundsForce</extracomment>
            <translation>Pfundkraft</translation>
        </message>
        <message>
            <source>Ounces Force</source>
            <extracomment>rsName_eftOuncesForce</extracomment>
            <translation>Unzenkraft</translation>
        </message>
        <message>
            <source>Poundals</source>
            <extracomment>rsName_eftPoundals</extracomment>
            <translation>Poundal</translation>
        </message>
        <message>
            <source>Tonnes Force</source>
            <extracomment>rsName_eftTonnesForce</extracomment>
            <translation>Tonnenkraft</translation>
        </message>
        <message>
            <source>Tons (Long) Force</source>
            <extracomment>rsName_eftTonsForce</extracomment>
            <translation>Long-Ton-Kraft</translation>
        </message>
        <message>
            <source>Tons (Short) Force</source>
            <extracomment>rsName_eftShortTonsForce</extracomment>
            <translation>Short-Ton-Kraft</translation>
        </message>
        <message>
            <source>Joules per Metre</source>
            <extracomment>rsName_eftJoulesPerMetre</extracomment>
            <translation>Joule pro Meter</translation>
        </message>
        <message>
            <source>Nanonewtons</source>
            <extracomment>rsName_eftNanonewtons</extracomment>
            <translation>Nanonewton</translation>
        </message>
        <message>
            <source>Kiloponds</source>
            <extracomment>rsName_eftKiloponds</extracomment>
            <translation>Kilopond</translation>
        </message>
        <message>
            <source>Crinals</source>
            <extracomment>rsName_eftCrinals</extracomment>
            <translation>Crinal</translation>
        </message>
        <message>
            <source>Kips Force</source>
            <extracomment>rsName_eftKipsForce</extracomment>
            <translation>Kipkraft</translation>
        </message>
        <message>
            <source>Kilopounds Force</source>
            <extracomment>rsName_eftKilopoundsForce</extracomment>
            <translation>Kilopfundkraft</translation>
        </message>
        <message>
            <source>Atomic Units of Force</source>
            <extracomment>rsName_eftAUForce</extracomment>
            <translation>Atomare Krafteinheit</translation>
        </message>
        <message>
            <source>Funals</source>
            <extracomment>rsName_eftFunals</extracomment>
            <translation>Funal</translation>
        </message>
        <message>
            <source>Sthènes</source>
            <extracomment>rsName_eftSthenes</extracomment>
            <translation>Sthène</translation>
        </message>
        <message>
            <source>Micronewtons</source>
            <extracomment>rsName_eftMicronewtons</extracomment>
            <translation>Mikronewton</translation>
        </message>
        <message>
            <source>Piconewtons</source>
            <extracomment>rsName_eftPiconewtons</extracomment>
            <translation>Pikonewton</translation>
        </message>
        <message>
            <source>Ponds</source>
            <extracomment>rsName_eftPonds</extracomment>
            <translation>Pond</translation>
        </message>
        <message>
            <source>Joules per Centimetre</source>
            <extracomment>rsName_eftJoulesPerCentimetre</extracomment>
            <translation>Joule pro Zentimeter</translation>
        </message>
        <message>
            <source>Joules per Kilometre</source>
            <extracomment>rsName_eftJoulesPerKilometre</extracomment>
            <translation>Joule pro Kilometer</translation>
        </message>
        <message>
            <source>Teranewtons</source>
            <extracomment>rsName_eftTeranewtons</extracomment>
            <translation>Teranewton</translation>
        </message>
        <message>
            <source>Joules</source>
            <extracomment>rsName_eetJoules</extracomment>
            <translation>Joule</translation>
        </message>
        <message>
            <source>Millijoules</source>
            <extracomment>rsName_eetMillijoules</extracomment>
            <translation>Millijoule</translation>
        </message>
        <message>
            <source>Microjoules</source>
            <extracomment>rsName_eetMicrojoules</extracomment>
            <translation>Mikrojoule</translation>
        </message>
        <message>
            <source>Nanojoules</source>
            <extracomment>rsName_eetNanojoules</extracomment>
            <translation>Nanojoule</translation>
        </message>
        <message>
            <source>Kilojoules</source>
            <extracomment>rsName_eetKilojoules</extracomment>
            <translation>Kilojoule</translation>
        </message>
        <message>
            <source>Megajoules</source>
            <extracomment>rsName_eetMegajoules</extracomment>
            <translation>Megajoule</translation>
        </message>
        <message>
            <source>Gigajoules</source>
            <extracomment>rsName_eetGigajoules</extracomment>
            <translation>Gigajoule</translation>
        </message>
        <message>
            <source>Ergs</source>
            <extracomment>rsName_eetErgs</extracomment>
            <translation>Erg</translation>
        </message>
        <message>
            <source>Calories (IT)</source>
            <extracomment>rsName_eetCaloriesIT</extracomment>
            <translation>Kalorie (IT)</translation>
        </message>
        <message>
            <source>Calories (Thermo-Chemical)</source>
            <extracomment>rsName_eetCaloriesTh</extracomment>
            <translation>Kalorie (thermochemisch)</translation>
        </message>
        <message>
            <source>Calories (Mean)</source>
            <extracomment>rsName_eetCaloriesMean</extracomment>
            <translation>Kalorie (mittel)</translation>
        </message>
        <message>
            <source>Calories (15°C)</source>
            <extracomment>rsName_eetCalories15C</extracomment>
            <translation>Kalorie (15 °C)</translation>
        </message>
        <message>
            <source>Calories (20°C)</source>
            <extracomment>rsName_eetCalories20C</extracomment>
            <translation>Kalorie (20 °C)</translation>
        </message>
        <message>
            <source>Kilocalories (IT)</source>
            <extracomment>rsName_eetKilocaloriesIT</extracomment>
            <translation>Kilokalorie (IT)</translation>
        </message>
        <message>
            <source>Kilocalories (Thermo-Chemical)</source>
            <extracomment>rsName_eetKilocaloriesTh</extracomment>
            <translation>Kilokalorie (thermochemisch)</translation>
        </message>
        <message>
            <source>Kilocalories (Mean)</source>
            <extracomment>rsName_eetKilocaloriesMean</extracomment>
            <translation>Kilokalorie (mittel)</translation>
        </message>
        <message>
            <source>Kilocalories (15°C)</source>
            <extracomment>rsName_eetKilocalories15C</extracomment>
            <translation>Kilokalorie (15 °C)</translation>
        </message>
        <message>
            <source>Kilocalories (20°C)</source>
            <extracomment>rsName_eetKilocalories20C</extracomment>
            <translation>Kilokalorie (20 °C)</translation>
        </message>
        <message>
            <source>British Thermal Units (IT)</source>
            <extracomment>rsName_eetBritishThermalUnitsIT</extracomment>
            <translation>British Thermal Unit (IT)</translation>
        </message>
        <message>
            <source>British Thermal Units (Thermo-Chemical)</source>
            <extracomment>rsName_eetBritishThermalUnitsTh</extracomment>
            <translation>British Thermal Unit (thermochemisch)</translation>
        </message>
        <message>
            <source>British Thermal Units (Mean)</source>
            <extracomment>rsName_eetBritishThermalUnitsMean</extracomment>
            <translation>British Thermal Unit (mittel)</translation>
        </message>
        <message>
            <source>British Thermal Units (39°F)</source>
            <extracomment>rsName_eetBritishThermalUnits39F</extracomment>
            <translation>British Thermal Unit (39 °F)</translation>
        </message>
        <message>
            <source>British Thermal Units (59°F)</source>
            <extracomment>rsName_eetBritishThermalUnits59F</extracomment>
            <translation>British Thermal Unit (59 °F)</translation>
        </message>
        <message>
            <source>British Thermal Units (60°F)</source>
            <extracomment>rsName_eetBritishThermalUnits60F</extracomment>
            <translation>British Thermal Unit (60 °F)</translation>
        </message>
        <message>
            <source>Therms (IT)</source>
            <extracomment>rsName_eetThermsIT</extracomment>
            <translation>Therm (IT)</translation>
        </message>
        <message>
            <source>Therms (Thermo-Chemical)</source>
            <extracomment>rsName_eetThermsTh</extracomment>
            <translation>Therm (thermochemisch)</translation>
        </message>
        <message>
            <source>Therms (Mean)</source>
            <extracomment>rsName_eetThermsMean</extracomment>
            <translation>Therm (mittel)</translation>
        </message>
        <message>
            <source>Therms (39°F)</source>
            <extracomment>rsName_eetTherms39F</extracomment>
            <translation>Therm (39 °F)</translation>
        </message>
        <message>
            <source>Therms (59°F)</source>
            <extracomment>rsName_eetTherms59F</extracomment>
            <translation>Therm (59 °F)</translation>
        </message>
        <message>
            <source>Therms (60°F)</source>
            <extracomment>rsName_eetTherms60F</extracomment>
            <translation>Therm (60 °F)</translation>
        </message>
        <message>
            <source>Thermies</source>
            <extracomment>rsName_eetThermies</extracomment>
            <translation>Thermie</translation>
        </message>
        <message>
            <source>Newton Metres</source>
            <extracomment>rsName_eetNewtonMetres, rsName_ettNewtonMetres</extracomment>
            <translation>Newtonmeter</translation>
        </message>
        <message>
            <source>Foot-Pounds</source>
            <extracomment>rsName_eetFootPounds</extracomment>
            <translation>Fuß-Pfund</translation>
        </message>
        <message>
            <source>Foot-Poundals</source>
            <extracomment>rsName_eetFootPoundals</extracomment>
            <translation>Fuß-Poundal</translation>
        </message>
        <message>
            <source>Kilogram Metres</source>
            <extracomment>rsName_eetKilogramMetres, rsName_ettKilogramMetres</extracomment>
            <translation>Kilogrammmeter</translation>
        </message>
        <message>
            <source>Watt Seconds</source>
            <extracomment>rsName_eetWattSeconds</extracomment>
            <translation>Wattsekunde</translation>
        </message>
        <message>
            <source>Watt Minutes</source>
            <extracomment>rsName_eetWattMinutes</extracomment>
            <translation>Wattminute</translation>
        </message>
        <message>
            <source>Watt Hours</source>
            <extracomment>rsName_eetWattHours</extracomment>
            <translation>Wattstunde</translation>
        </message>
        <message>
            <source>Watt Years</source>
            <extracomment>rsName_eetWattYears</extracomment>
            <translation>Wattjahr</translation>
        </message>
        <message>
            <source>Kilowatt Seconds</source>
            <extracomment>rsName_eetKilowattSeconds</extracomment>
            <translation>Kilowattsekunde</translation>
        </message>
        <message>
            <source>Kilowatt Minutes</source>
            <extracomment>rsName_eetKilowattMinutes</extracomment>
            <translation>Kilowattminute</translation>
        </message>
        <message>
            <source>Kilowatt Hours</source>
            <extracomment>rsName_eetKilowattHours</extracomment>
            <translation>Kilowattstunde</translation>
        </message>
        <message>
            <source>Electron Volts</source>
            <extracomment>rsName_eetElectronVolts</extracomment>
            <translation>Elektronenvolt</translation>
        </message>
        <message>
            <source>Kilo-Electron Volts</source>
            <extracomment>rsName_eetKiloElectronVolts</extracomment>
            <translation>Kiloelektronenvolt</translation>
        </message>
        <message>
            <source>Mega-Electron Volts</source>
            <extracomment>rsName_eetMegaElectronVolts</extracomment>
            <translation>Megaelektronenvolt</translation>
        </message>
        <message>
            <source>Giga-Electron Volts</source>
            <extracomment>rsName_eetGigaElectronVolts</extracomment>
            <translation>Gigaelektronenvolt</translation>
        </message>
        <message>
            <source>Horsepower Seconds</source>
            <extracomment>rsName_eetHorsepowerSeconds</extracomment>
            <translation>Pferdestärkensekunde</translation>
        </message>
        <message>
            <source>Horsepower Minutes</source>
            <extracomment>rsName_eetHorsepowerMinutes</extracomment>
            <translation>Pferdestärkenminute</translation>
        </message>
        <message>
            <source>Horsepower Hours</source>
            <extracomment>rsName_eetHorsepowerHours</extracomment>
            <translation>Pferdestärkenstunde</translation>
        </message>
        <message>
            <source>Terajoules</source>
            <extracomment>rsName_eetTerajoules</extracomment>
            <translation>Terajoule</translation>
        </message>
        <message>
            <source>Watts</source>
            <extracomment>rsName_eptWatts</extracomment>
            <translation>Watt</translation>
        </message>
        <message>
            <source>Kilowatts</source>
            <extracomment>rsName_eptKilowatts</extracomment>
            <translation>Kilowatt</translation>
        </message>
        <message>
            <source>Megawatts</source>
            <extracomment>rsName_eptMegawatts</extracomment>
            <translation>Megawatt</translation>
        </message>
        <message>
            <source>Gigawatts</source>
            <extracomment>rsName_eptGigawatts</extracomment>
            <translation>Gigawatt</translation>
        </message>
        <message>
            <source>Milliwatts</source>
            <extracomment>rsName_eptMilliwatts</extracomment>
            <translation>Milliwatt</translation>
        </message>
        <message>
            <source>Microwatts</source>
            <extracomment>rsName_eptMicrowatts</extracomment>
            <translation>Mikrowatt</translation>
        </message>
        <message>
            <source>Abwatts</source>
            <extracomment>rsName_eptAbwatts</extracomment>
            <translation>Abwatt</translation>
        </message>
        <message>
            <source>Horsepower (Mechanical)</source>
            <extracomment>rsName_eptHorsepower</extracomment>
            <translation>Pferdestärke (mechanisch)</translation>
        </message>
        <message>
            <source>Horsepower (Metric)</source>
            <extracomment>rsName_eptHorsepowerMetric</extracomment>
            <translation>Pferdestärke (metrisch)</translation>
        </message>
        <message>
            <source>Foot-Pounds per Second</source>
            <extracomment>rsName_eptFootPoundsPerSecond</extracomment>
            <translation>Fuß-Pfund pro Sekunde</translation>
        </message>
        <message>
            <source>Kilogram Metres per Second</source>
            <extracomment>rsName_eptKilogramMetresPerSecond</extracomment>
            <translation>Kilogrammmeter pro Sekunde</translation>
        </message>
        <message>
            <source>Joules per Second</source>
            <extracomment>rsName_eptJoulesPerSecond</extracomment>
            <translation>Joule pro Sekunde</translation>
        </message>
        <message>
            <source>Joules per Minute</source>
            <extracomment>rsName_eptJoulesPerMinute</extracomment>
            <translation>Joule pro Minute</translation>
        </message>
        <message>
            <source>Joules per Hour</source>
            <extracomment>rsName_eptJoulesPerHour</extracomment>
            <translation>Joule pro Stunde</translation>
        </message>
        <message>
            <source>Calories (IT) per Second</source>
            <extracomment>rsName_eptCaloriesITPerSecond</extracomment>
            <translation>Kalorie (IT) pro Sekunde</translation>
        </message>
        <message>
            <source>Calories (IT) per Minute</source>
            <extracomment>rsName_eptCaloriesITPerMinute</extracomment>
            <translation>Kalorie (IT) pro Minute</translation>
        </message>
        <message>
            <source>Calories (IT) per Hour</source>
            <extracomment>rsName_eptCaloriesITPerHour</extracomment>
            <translation>Kalorie (IT) pro Stunde</translation>
        </message>
        <message>
            <source>Calories (Th) per Second</source>
            <extracomment>rsName_eptCaloriesThPerSecond</extracomment>
            <translation>Kalorie (th) pro Sekunde</translation>
        </message>
        <message>
            <source>Calories (Th) per Minute</source>
            <extracomment>rsName_eptCaloriesThPerMinute</extracomment>
            <translation>Kalorie (th) pro Minute</translation>
        </message>
        <message>
            <source>Calories (Th) per Hour</source>
            <extracomment>rsName_eptCaloriesThPerHour</extracomment>
            <translation>Kalorie (th) pro Stunde</translation>
        </message>
        <message>
            <source>Kilocalories (IT) per Second</source>
            <extracomment>rsName_eptKilocaloriesITPerSecond</extracomment>
            <translation>Kilokalorie (IT) pro Sekunde</translation>
        </message>
        <message>
            <source>Kilocalories (IT) per Minute</source>
            <extracomment>rsName_eptKilocaloriesITPerMinute</extracomment>
            <translation>Kilokalorie (IT) pro Minute</translation>
        </message>
        <message>
            <source>Kilocalories (IT) per Hour</source>
            <extracomment>rsName_eptKilocaloriesITPerHour</extracomment>
            <translation>Kilokalorie (IT) pro Stunde</translation>
        </message>
        <message>
            <source>Kilocalories (Th) per Second</source>
            <extracomment>rsName_eptKilocaloriesThPerSecond</extracomment>
            <translation>Kilokalorie (th) pro Sekunde</translation>
        </message>
        <message>
            <source>Kilocalories (Th) per Minute</source>
            <extracomment>rsName_eptKilocaloriesThPerMinute</extracomment>
            <translation>Kilokalorie (th) pro Minute</translation>
        </message>
        <message>
            <source>Kilocalories (Th) per Hour</source>
            <extracomment>rsName_eptKilocaloriesThPerHour</extracomment>
            <translation>Kilokalorie (th) pro Stunde</translation>
        </message>
        <message>
            <source>Pferdestärke</source>
            <extracomment>rsName_eptPferdestarke</extracomment>
            <translation>Pferdestärke</translation>
        </message>
        <message>
            <source>Cheval Vapeur</source>
            <extracomment>rsName_eptChevalVapeur</extracomment>
            <translation>Cheval-Vapeur</translation>
        </message>
        <message>
            <source>Tons of Refrigeration</source>
            <extracomment>rsName_eptRefTons</extracomment>
            <translation>Kältetonne (TR)</translation>
        </message>
        <message>
            <source>BTUs (IT) Per Second</source>
            <extracomment>rsName_eptBTUsITPerSecond</extracomment>
            <translation>BTU (IT) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (IT) Per Minute</source>
            <extracomment>rsName_eptBTUsITPerMinute</extracomment>
            <translation>BTU (IT) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (IT) Per Hour</source>
            <extracomment>rsName_eptBTUsITPerHour</extracomment>
            <translation>BTU (IT) pro Stunde</translation>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Second</source>
            <extracomment>rsName_eptBTUsThPerSecond</extracomment>
            <translation>BTU (thermochemisch) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Minute</source>
            <extracomment>rsName_eptBTUsThPerMinute</extracomment>
            <translation>BTU (thermochemisch) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Hour</source>
            <extracomment>rsName_eptBTUsThPerHour</extracomment>
            <translation>BTU (thermochemisch) pro Stunde</translation>
        </message>
        <message>
            <source>BTUs (Mean) Per Second</source>
            <extracomment>rsName_eptBTUsMeanPerSecond</extracomment>
            <translation>BTU (mittel) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (Mean) Per Minute</source>
            <extracomment>rsName_eptBTUsMeanPerMinute</extracomment>
            <translation>BTU (mittel) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (Mean) Per Hour</source>
            <extracomment>rsName_eptBTUsMeanPerHour</extracomment>
            <translation>BTU (mittel) pro Stunde</translation>
        </message>
        <message>
            <source>BTUs (39°F) Per Second</source>
            <extracomment>rsName_eptBTUs39FPerSecond</extracomment>
            <translation>BTU (39 °F) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (39°F) Per Minute</source>
            <extracomment>rsName_eptBTUs39FPerMinute</extracomment>
            <translation>BTU (39 °F) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (39°F) Per Hour</source>
            <extracomment>rsName_eptBTUs39FPerHour</extracomment>
            <translation>BTU (39 °F) pro Stunde</translation>
        </message>
        <message>
            <source>BTUs (59°F) Per Second</source>
            <extracomment>rsName_eptBTUs59FPerSecond</extracomment>
            <translation>BTU (59 °F) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (59°F) Per Minute</source>
            <extracomment>rsName_eptBTUs59FPerMinute</extracomment>
            <translation>BTU (59 °F) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (59°F) Per Hour</source>
            <extracomment>rsName_eptBTUs59FPerHour</extracomment>
            <translation>BTU (59 °F) pro Stunde</translation>
        </message>
        <message>
            <source>BTUs (60°F) Per Second</source>
            <extracomment>rsName_eptBTUs60FPerSecond</extracomment>
            <translation>BTU (60 °F) pro Sekunde</translation>
        </message>
        <message>
            <source>BTUs (60°F) Per Minute</source>
            <extracomment>rsName_eptBTUs60FPerMinute</extracomment>
            <translation>BTU (60 °F) pro Minute</translation>
        </message>
        <message>
            <source>BTUs (60°F) Per Hour</source>
            <extracomment>rsName_eptBTUs60FPerHour</extracomment>
            <translation>BTU (60 °F) pro Stunde</translation>
        </message>
        <message>
            <source>Horsepower (Electrical)</source>
            <extracomment>rsName_eptHorsepowerElectrical</extracomment>
            <translation>Pferdestärke (elektrisch)</translation>
        </message>
        <message>
            <source>Ergs per Second</source>
            <extracomment>rsName_eptErgsPerSecond</extracomment>
            <translation>Erg pro Sekunde</translation>
        </message>
        <message>
            <source>Nanowatts</source>
            <extracomment>rsName_eptNanowatts</extracomment>
            <translation>Nanowatt</translation>
        </message>
        <message>
            <source>Terawatts</source>
            <extracomment>rsName_eptTerawatts</extracomment>
            <translation>Terawatt</translation>
        </message>
        <message>
            <source>Picowatts</source>
            <extracomment>rsName_eptPicowatts</extracomment>
            <translation>Pikowatt</translation>
        </message>
        <message>
            <source>Kilometres per Litre</source>
            <extracomment>rsName_eftKilometresPerLitre</extracomment>
            <translation>Kilometer pro Liter</translation>
        </message>
        <message>
            <source>KPL</source>
            <extracomment>rsName_eftKPL</extracomment>
            <translation>km/l</translation>
        </message>
        <message>
            <source>Litres per 100 Kilometres</source>
            <extracomment>rsName_eftLitresPer100Kilometres</extracomment>
            <translation>Liter pro 100 Kilometer</translation>
        </message>
        <message>
            <source>Miles per Litre</source>
            <extracomment>rsName_eftMilesPerLitre</extracomment>
            <translation>Meile pro Liter</translation>
        </message>
        <message>
            <source>Miles per Gallon (UK)</source>
            <extracomment>rsName_eftMilesPerGallonUK</extracomment>
            <translation>Meile pro Gallone (brit.)</translation>
        </message>
        <message>
            <source>Miles per Gallon (US)</source>
            <extracomment>rsName_eftMilesPerGallonUS</extracomment>
            <translation>Meile pro Gallone (US)</translation>
        </message>
        <message>
            <source>MPG (UK)</source>
            <extracomment>rsName_eftMPGUK</extracomment>
            <translation>mpg (brit.)</translation>
        </message>
        <message>
            <source>MPG (US)</source>
            <extracomment>rsName_eftMPGUS</extracomment>
            <translation>mpg (US)</translation>
        </message>
        <message>
            <source>Gallons (UK) per 100 Kilometres</source>
            <extracomment>rsName_eftGallonsUKPer100Kilometres</extracomment>
            <translation>Gallone (brit.) pro 100 Kilometer</translation>
        </message>
        <message>
            <source>Gallons (US) per 100 Kilometres</source>
            <extracomment>rsName_eftGallonsUSPer100Kilometres</extracomment>
            <translation>Gallone (US) pro 100 Kilometer</translation>
        </message>
        <message>
            <source>Gallons (UK) per 100 Miles</source>
            <extracomment>rsName_eftGallonsUKPer100Miles</extracomment>
            <translation>Gallone (brit.) pro 100 Meile</translation>
        </message>
        <message>
            <source>Gallons (US) per 100 Miles</source>
            <extracomment>rsName_eftGallonsUSPer100Miles</extracomment>
            <translation>Gallone (US) pro 100 Meile</translation>
        </message>
        <message>
            <source>Kilometres per Gallon (UK)</source>
            <extracomment>rsName_eftKilometresPerGallonUK</extracomment>
            <translation>Kilometer pro Gallone (brit.)</translation>
        </message>
        <message>
            <source>Kilometres per Gallon (US)</source>
            <extracomment>rsName_eftKilometresPerGallonUS</extracomment>
            <translation>Kilometer pro Gallone (US)</translation>
        </message>
        <message>
            <source>Litres per 100 Miles</source>
            <extracomment>rsName_eftLitresPer100Miles</extracomment>
            <translation>Liter pro 100 Meile</translation>
        </message>
        <message>
            <source>Cubic Metres per Second</source>
            <extracomment>rsName_eftCubicMetresPerSecond</extracomment>
            <translation>Kubikmeter pro Sekunde</translation>
        </message>
        <message>
            <source>Litres per Second</source>
            <extracomment>rsName_eftLitresPerSecond</extracomment>
            <translation>Liter pro Sekunde</translation>
        </message>
        <message>
            <source>Litres per Minute</source>
            <extracomment>rsName_eftLitresPerMinute</extracomment>
            <translation>Liter pro Minute</translation>
        </message>
        <message>
            <source>Litres per Hour</source>
            <extracomment>rsName_eftLitresPerHour</extracomment>
            <translation>Liter pro Stunde</translation>
        </message>
        <message>
            <source>Litres per Day</source>
            <extracomment>rsName_eftLitresPerDay</extracomment>
            <translation>Liter pro Tag</translation>
        </message>
        <message>
            <source>Millilitres per Second</source>
            <extracomment>rsName_eftMillilitresPerSecond</extracomment>
            <translation>Milliliter pro Sekunde</translation>
        </message>
        <message>
            <source>Millilitres per Minute</source>
            <extracomment>rsName_eftMillilitresPerMinute</extracomment>
            <translation>Milliliter pro Minute</translation>
        </message>
        <message>
            <source>Millilitres per Hour</source>
            <extracomment>rsName_eftMillilitresPerHour</extracomment>
            <translation>Milliliter pro Stunde</translation>
        </message>
        <message>
            <source>Kilolitres per Second</source>
            <extracomment>rsName_eftKilolitresPerSecond</extracomment>
            <translation>Kiloliter pro Sekunde</translation>
        </message>
        <message>
            <source>Kilolitres per Minute</source>
            <extracomment>rsName_eftKilolitresPerMinute</extracomment>
            <translation>Kiloliter pro Minute</translation>
        </message>
        <message>
            <source>Kilolitres per Hour</source>
            <extracomment>rsName_eftKilolitresPerHour</extracomment>
            <translation>Kiloliter pro Stunde</translation>
        </message>
        <message>
            <source>Kilolitres per Day</source>
            <extracomment>rsName_eftKilolitresPerDay</extracomment>
            <translation>Kiloliter pro Tag</translation>
        </message>
        <message>
            <source>Gallons (UK) per Second</source>
            <extracomment>rsName_eftGallonsUKPerSecond</extracomment>
            <translation>Gallone (brit.) pro Sekunde</translation>
        </message>
        <message>
            <source>Gallons (UK) per Minute</source>
            <extracomment>rsName_eftGallonsUKPerMinute</extracomment>
            <translation>Gallone (brit.) pro Minute</translation>
        </message>
        <message>
            <source>Gallons (UK) per Hour</source>
            <extracomment>rsName_eftGallonsUKPerHour</extracomment>
            <translation>Gallone (brit.) pro Stunde</translation>
        </message>
        <message>
            <source>Gallons (UK) per Day</source>
            <extracomment>rsName_eftGallonsUKPerDay</extracomment>
            <translation>Gallone (brit.) pro Tag</translation>
        </message>
        <message>
            <source>Gallons (US) per Second</source>
            <extracomment>rsName_eftGallonsUSPerSecond</extracomment>
            <translation>Gallone (US) pro Sekunde</translation>
        </message>
        <message>
            <source>Gallons (US) per Minute</source>
            <extracomment>rsName_eftGallonsUSPerMinute</extracomment>
            <translation>Gallone (US) pro Minute</translation>
        </message>
        <message>
            <source>Gallons (US) per Hour</source>
            <extracomment>rsName_eftGallonsUSPerHour</extracomment>
            <translation>Gallone (US) pro Stunde</translation>
        </message>
        <message>
            <source>Gallons (US) per Day</source>
            <extracomment>rsName_eftGallonsUSPerDay</extracomment>
            <translation>Gallone (US) pro Tag</translation>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Second</source>
            <extracomment>rsName_eftFluidOuncesUKPerSecond</extracomment>
            <translation>Flüssigunze (brit.) pro Sekunde</translation>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Minute</source>
            <extracomment>rsName_eftFluidOuncesUKPerMinute</extracomment>
            <translation>Flüssigunze (brit.) pro Minute</translation>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Hour</source>
            <extracomment>rsName_eftFluidOuncesUKPerHour</extracomment>
            <translation>Flüssigunze (brit.) pro Stunde</translation>
        </message>
        <message>
            <source>Fluid Ounces (US) per Second</source>
            <extracomment>rsName_eftFluidOuncesUSPerSecond</extracomment>
            <translation>Flüssigunze (US) pro Sekunde</translation>
        </message>
        <message>
            <source>Fluid Ounces (US) per Minute</source>
            <extracomment>rsName_eftFluidOuncesUSPerMinute</extracomment>
            <translation>Flüssigunze (US) pro Minute</translation>
        </message>
        <message>
            <source>Fluid Ounces (US) per Hour</source>
            <extracomment>rsName_eftFluidOuncesUSPerHour</extracomment>
            <translation>Flüssigunze (US) pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Centimetres per Second</source>
            <extracomment>rsName_eftCubicCentimetresPerSecond</extracomment>
            <translation>Kubikzentimeter pro Sekunde</translation>
        </message>
        <message>
            <source>Cubic Centimetres per Minute</source>
            <extracomment>rsName_eftCubicCentimetresPerMinute</extracomment>
            <translation>Kubikzentimeter pro Minute</translation>
        </message>
        <message>
            <source>Cubic Centimetres per Hour</source>
            <extracomment>rsName_eftCubicCentimetresPerHour</extracomment>
            <translation>Kubikzentimeter pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Millimetres per Second</source>
            <extracomment>rsName_eftCubicMillimetresPerSecond</extracomment>
            <translation>Kubikmillimeter pro Sekunde</translation>
        </message>
        <message>
            <source>Cubic Millimetres per Minute</source>
            <extracomment>rsName_eftCubicMillimetresPerMinute</extracomment>
            <translation>Kubikmillimeter pro Minute</translation>
        </message>
        <message>
            <source>Cubic Millimetres per Hour</source>
            <extracomment>rsName_eftCubicMillimetresPerHour</extracomment>
            <translation>Kubikmillimeter pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Metres per Minute</source>
            <extracomment>rsName_eftCubicMetresPerMinute</extracomment>
            <translation>Kubikmeter pro Minute</translation>
        </message>
        <message>
            <source>Cubic Metres per Hour</source>
            <extracomment>rsName_eftCubicMetresPerHour</extracomment>
            <translation>Kubikmeter pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Metres per Day</source>
            <extracomment>rsName_eftCubicMetresPerDay</extracomment>
            <translation>Kubikmeter pro Tag</translation>
        </message>
        <message>
            <source>Cubic Inches per Second</source>
            <extracomment>rsName_eftCubicInchesPerSecond</extracomment>
            <translation>Kubikzoll pro Sekunde</translation>
        </message>
        <message>
            <source>Cubic Inches per Minute</source>
            <extracomment>rsName_eftCubicInchesPerMinute</extracomment>
            <translation>Kubikzoll pro Minute</translation>
        </message>
        <message>
            <source>Cubic Inches per Hour</source>
            <extracomment>rsName_eftCubicInchesPerHour</extracomment>
            <translation>Kubikzoll pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Feet per Second</source>
            <extracomment>rsName_eftCubicFeetPerSecond</extracomment>
            <translation>Kubikfuß pro Sekunde</translation>
        </message>
        <message>
            <source>Cubic Feet per Minute</source>
            <extracomment>rsName_eftCubicFeetPerMinute</extracomment>
            <translation>Kubikfuß pro Minute</translation>
        </message>
        <message>
            <source>Cubic Feet per Hour</source>
            <extracomment>rsName_eftCubicFeetPerHour</extracomment>
            <translation>Kubikfuß pro Stunde</translation>
        </message>
        <message>
            <source>Cubic Yards per Second</source>
            <extracomment>rsName_eftCubicYardsPerSecond</extracomment>
            <translation>Kubikyard pro Sekunde</translation>
        </message>
        <message>
            <source>Cubic Yards per Minute</source>
            <extracomment>rsName_eftCubicYardsPerMinute</extracomment>
            <translation>Kubikyard pro Minute</translation>
        </message>
        <message>
            <source>Cubic Yards per Hour</source>
            <extracomment>rsName_eftCubicYardsPerHour</extracomment>
            <translation>Kubikyard pro Stunde</translation>
        </message>
        <message>
            <source>Megagallons (UK) per Year (365 days)</source>
            <extracomment>rsName_eftMegaGallonsUKPerYear</extracomment>
            <translation>Megagallone (brit.) pro Jahr (365 Tage)</translation>
        </message>
        <message>
            <source>Megagallons (US) per Year (365 days)</source>
            <extracomment>rsName_eftMegaGallonsUSPerYear</extracomment>
            <translation>Megagallone (US) pro Jahr (365 Tage)</translation>
        </message>
        <message>
            <source>Acre-Feet per Year (365 days)</source>
            <extracomment>rsName_eftAcreFeetPerYear</extracomment>
            <translation>Acre-Fuß pro Jahr (365 Tage)</translation>
        </message>
        <message>
            <source>Acre-Feet per Day</source>
            <extracomment>rsName_eftAcreFeetPerDay</extracomment>
            <translation>Acre-Fuß pro Tag</translation>
        </message>
        <message>
            <source>Acre-Inches per Day</source>
            <extracomment>rsName_eftAcreInchesPerDay</extracomment>
            <translation>Acre-Zoll pro Tag</translation>
        </message>
        <message>
            <source>Barrels (Oil) per Day</source>
            <extracomment>rsName_eftBarrelsOilPerDay</extracomment>
            <translation>Barrel (Öl) pro Tag</translation>
        </message>
        <message>
            <source>Cusecs</source>
            <extracomment>rsName_eftCusec</extracomment>
            <translation>Cusec</translation>
        </message>
        <message>
            <source>Dyne Centimetres</source>
            <extracomment>rsName_ettDyneCentimetres</extracomment>
            <translation>Dynzentimeter</translation>
        </message>
        <message>
            <source>Gram Centimetres</source>
            <extracomment>rsName_ettGramCentimetres</extracomment>
            <translation>Grammzentimeter</translation>
        </message>
        <message>
            <source>Ounce Inches</source>
            <extracomment>rsName_ettOunceInches</extracomment>
            <translation>Unze-Zoll</translation>
        </message>
        <message>
            <source>Pound Inches</source>
            <extracomment>rsName_ettPoundInches</extracomment>
            <translation>Pfund-Zoll</translation>
        </message>
        <message>
            <source>Pound Feet</source>
            <extracomment>rsName_ettPoundFeet</extracomment>
            <translation>Pfund-Fuß</translation>
        </message>
        <message>
            <source>Poundal Feet</source>
            <extracomment>rsName_ettPoundalFeet</extracomment>
            <translation>Poundal-Fuß</translation>
        </message>
        <message>
            <source>Ton (Long) Feet</source>
            <extracomment>rsName_ettTonFeet</extracomment>
            <translation>Long-Ton-Fuß</translation>
        </message>
        <message>
            <source>Ton (Short) Feet</source>
            <extracomment>rsName_ettShortTonFeet</extracomment>
            <translation>Short-Ton-Fuß</translation>
        </message>
        <message>
            <source>Tonne Metres</source>
            <extracomment>rsName_ettTonneMetres</extracomment>
            <translation>Tonnenmeter</translation>
        </message>
        <message>
            <source>Newton Microns</source>
            <extracomment>rsName_ettNewtonMicrons</extracomment>
            <translation>Newtonmikron</translation>
        </message>
        <message>
            <source>Nanonewton Metres</source>
            <extracomment>rsName_ettNanonewtonMetres</extracomment>
            <translation>Nanonewtonmeter</translation>
        </message>
        <message>
            <source>Nanonewton Microns</source>
            <extracomment>rsName_ettNanonewtonMicrons</extracomment>
            <translation>Nanonewtonmikron</translation>
        </message>
        <message>
            <source>Newton Centimetres</source>
            <extracomment>rsName_ettNewtonCentimetres</extracomment>
            <translation>Newtonzentimeter</translation>
        </message>
        <message>
            <source>Becquerels</source>
            <extracomment>rsName_ertBecquerels</extracomment>
            <translation>Becquerel</translation>
        </message>
        <message>
            <source>Kilobecquerels</source>
            <extracomment>rsName_ertKilobecquerels</extracomment>
            <translation>Kilobecquerel</translation>
        </message>
        <message>
            <source>Megabecquerels</source>
            <extracomment>rsName_ertMegabecquerels</extracomment>
            <translation>Megabecquerel</translation>
        </message>
        <message>
            <source>Gigabecquerels</source>
            <extracomment>rsName_ertGigabecquerels</extracomment>
            <translation>Gigabecquerel</translation>
        </message>
        <message>
            <source>Curies</source>
            <extracomment>rsName_ertCuries</extracomment>
            <translation>Curie</translation>
        </message>
        <message>
            <source>Millicuries</source>
            <extracomment>rsName_ertMillicuries</extracomment>
            <translation>Millicurie</translation>
        </message>
        <message>
            <source>Microcuries</source>
            <extracomment>rsName_ertMicrocuries</extracomment>
            <translation>Mikrocurie</translation>
        </message>
        <message>
            <source>Rutherfords</source>
            <extracomment>rsName_ertRutherfords</extracomment>
            <translation>Rutherford</translation>
        </message>
        <message>
            <source>Kilograms per Second</source>
            <extracomment>rsName_eftKilogramsPerSecond</extracomment>
            <translation>Kilogramm pro Sekunde</translation>
        </message>
        <message>
            <source>Kilograms per Minute</source>
            <extracomment>rsName_eftKilogramsPerMinute</extracomment>
            <translation>Kilogramm pro Minute</translation>
        </message>
        <message>
            <source>Kilograms per Hour</source>
            <extracomment>rsName_eftKilogramsPerHour</extracomment>
            <translation>Kilogramm pro Stunde</translation>
        </message>
        <message>
            <source>Grams per Second</source>
            <extracomment>rsName_eftGramsPerSecond</extracomment>
            <translation>Gramm pro Sekunde</translation>
        </message>
        <message>
            <source>Grams per Minute</source>
            <extracomment>rsName_eftGramsPerMinute</extracomment>
            <translation>Gramm pro Minute</translation>
        </message>
        <message>
            <source>Grams per Hour</source>
            <extracomment>rsName_eftGramsPerHour</extracomment>
            <translation>Gramm pro Stunde</translation>
        </message>
        <message>
            <source>Pounds per Second</source>
            <extracomment>rsName_eftPoundsPerSecond</extracomment>
            <translation>Pfund pro Sekunde</translation>
        </message>
        <message>
            <source>Pounds per Minute</source>
            <extracomment>rsName_eftPoundsPerMinute</extracomment>
            <translation>Pfund pro Minute</translation>
        </message>
        <message>
            <source>Pounds per Hour</source>
            <extracomment>rsName_eftPoundsPerHour</extracomment>
            <translation>Pfund pro Stunde</translation>
        </message>
        <message>
            <source>Ounces per Second</source>
            <extracomment>rsName_eftOuncesPerSecond</extracomment>
            <translation>Unze pro Sekunde</translation>
        </message>
        <message>
            <source>Ounces per Minute</source>
            <extracomment>rsName_eftOuncesPerMinute</extracomment>
            <translation>Unze pro Minute</translation>
        </message>
        <message>
            <source>Ounces per Hour</source>
            <extracomment>rsName_eftOuncesPerHour</extracomment>
            <translation>Unze pro Stunde</translation>
        </message>
        <message>
            <source>Slugs per Second</source>
            <extracomment>rsName_eftSlugsPerSecond</extracomment>
            <translation>Slug pro Sekunde</translation>
        </message>
        <message>
            <source>Slugs per Minute</source>
            <extracomment>rsName_eftSlugsPerMinute</extracomment>
            <translation>Slug pro Minute</translation>
        </message>
        <message>
            <source>Slugs per Hour</source>
            <extracomment>rsName_eftSlugsPerHour</extracomment>
            <translation>Slug pro Stunde</translation>
        </message>
        <message>
            <source>Lux</source>
            <extracomment>rsName_eitLux</extracomment>
            <translation>Lux</translation>
        </message>
        <message>
            <source>Lumens per Sq Metre</source>
            <extracomment>rsName_eitLumensPerSqM</extracomment>
            <translation>Lumen pro Quadratmeter</translation>
        </message>
        <message>
            <source>Metre-Candles</source>
            <extracomment>rsName_eitMetreCandles</extracomment>
            <translation>Meterkerze</translation>
        </message>
        <message>
            <source>Foot-Candles</source>
            <extracomment>rsName_eitFootCandles</extracomment>
            <translation>Foot-Candle</translation>
        </message>
        <message>
            <source>Phots</source>
            <extracomment>rsName_eitPhots</extracomment>
            <translation>Phot</translation>
        </message>
        <message>
            <source>MilliPhots</source>
            <extracomment>rsName_eitMilliPhots</extracomment>
            <translation>Milliphot</translation>
        </message>
        <message>
            <source>Noon-Day Sun Brightness</source>
            <extracomment>rsName_eitNoonSun</extracomment>
            <translation>Helligkeit der Mittagssonne</translation>
        </message>
        <message>
            <source>Lumens per Sq Foot</source>
            <extracomment>rsName_eitLumensPerSqFt</extracomment>
            <translation>Lumen pro Quadratfuß</translation>
        </message>
        <message>
            <source>Nox</source>
            <extracomment>rsName_eitNox</extracomment>
            <translation>Nox</translation>
        </message>
        <message>
            <source>Lumens per Sq Centimetre</source>
            <extracomment>rsName_eitLumensPerSqCm</extracomment>
            <translation>Lumen pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Millilux</source>
            <extracomment>rsName_eitMillilux</extracomment>
            <translation>Millilux</translation>
        </message>
        <message>
            <source>Kilolux</source>
            <extracomment>rsName_eitKilolux</extracomment>
            <translation>Kilolux</translation>
        </message>
        <message>
            <source>Candelas</source>
            <extracomment>rsName_eltCandelas</extracomment>
            <translation>Candela</translation>
        </message>
        <message>
            <source>Candles (International)</source>
            <extracomment>rsName_eltCandles</extracomment>
            <translation>Kerze (international)</translation>
        </message>
        <message>
            <source>Hefner Units</source>
            <extracomment>rsName_eltHefnerUnits</extracomment>
            <translation>Hefnereinheit</translation>
        </message>
        <message>
            <source>Violle</source>
            <extracomment>rsName_eltViolle</extracomment>
            <translation>Violle</translation>
        </message>
        <message>
            <source>Lumens per Steradian</source>
            <extracomment>rsName_eltLumensPerSteradian</extracomment>
            <translation>Lumen pro Steradiant</translation>
        </message>
        <message>
            <source>Bougies (Decimal)</source>
            <extracomment>rsName_eltBougies</extracomment>
            <translation>Bougie (dezimal)</translation>
        </message>
        <message>
            <source>Carcels</source>
            <extracomment>rsName_eltCarcels</extracomment>
            <translation>Carcel</translation>
        </message>
        <message>
            <source>Kilocandelas</source>
            <extracomment>rsName_eltKilocandelas</extracomment>
            <translation>Kilocandela</translation>
        </message>
        <message>
            <source>Millicandelas</source>
            <extracomment>rsName_eltMillicandelas</extracomment>
            <translation>Millicandela</translation>
        </message>
        <message>
            <source>Candelas per Sq Metre</source>
            <extracomment>rsName_eltCandelasPerSqM</extracomment>
            <translation>Candela pro Quadratmeter</translation>
        </message>
        <message>
            <source>Candelas per Sq Centimetre</source>
            <extracomment>rsName_eltCandelasPerSqCm</extracomment>
            <translation>Candela pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Candelas per Sq Foot</source>
            <extracomment>rsName_eltCandelasPerSqFt</extracomment>
            <translation>Candela pro Quadratfuß</translation>
        </message>
        <message>
            <source>Lamberts</source>
            <extracomment>rsName_eltLamberts</extracomment>
            <translation>Lambert</translation>
        </message>
        <message>
            <source>Millilamberts</source>
            <extracomment>rsName_eltMillilamberts</extracomment>
            <translation>Millilambert</translation>
        </message>
        <message>
            <source>Foot-Lamberts</source>
            <extracomment>rsName_eltFootLamberts</extracomment>
            <translation>Foot-Lambert</translation>
        </message>
        <message>
            <source>Nits</source>
            <extracomment>rsName_eltNits</extracomment>
            <translation>Nit</translation>
        </message>
        <message>
            <source>Stilbs</source>
            <extracomment>rsName_eltStilbs</extracomment>
            <translation>Stilb</translation>
        </message>
        <message>
            <source>Apostilbs</source>
            <extracomment>rsName_eltApostilbs</extracomment>
            <translation>Apostilb</translation>
        </message>
        <message>
            <source>Lumens</source>
            <extracomment>rsName_eltLumens</extracomment>
            <translation>Lumen</translation>
        </message>
        <message>
            <source>Millilumens</source>
            <extracomment>rsName_eltMillilumens</extracomment>
            <translation>Millilumen</translation>
        </message>
        <message>
            <source>Kilolumens</source>
            <extracomment>rsName_eltKilolumens</extracomment>
            <translation>Kilolumen</translation>
        </message>
        <message>
            <source>Candela Steradians</source>
            <extracomment>rsName_eltCandelaSteradians</extracomment>
            <translation>Candelasteradiant</translation>
        </message>
        <message>
            <source>Candle Power (Spherical)</source>
            <extracomment>rsName_eltCandlepowerSpherical</extracomment>
            <translation>Kerzenstärke (sphärisch)</translation>
        </message>
        <message>
            <source>Radians per Second</source>
            <extracomment>rsName_eatRadiansPerSec</extracomment>
            <translation>Radiant pro Sekunde</translation>
        </message>
        <message>
            <source>Radians per Minute</source>
            <extracomment>rsName_eatRadiansPerMin</extracomment>
            <translation>Radiant pro Minute</translation>
        </message>
        <message>
            <source>Radians per Hour</source>
            <extracomment>rsName_eatRadiansPerHr</extracomment>
            <translation>Radiant pro Stunde</translation>
        </message>
        <message>
            <source>Degrees per Second</source>
            <extracomment>rsName_eatDegreesPerSec</extracomment>
            <translation>Grad pro Sekunde</translation>
        </message>
        <message>
            <source>Degrees per Minute</source>
            <extracomment>rsName_eatDegreesPerMin</extracomment>
            <translation>Grad pro Minute</translation>
        </message>
        <message>
            <source>Degrees per Hour</source>
            <extracomment>rsName_eatDegreesPerHr</extracomment>
            <translation>Grad pro Stunde</translation>
        </message>
        <message>
            <source>Revolutions per Second</source>
            <extracomment>rsName_eatRevPerSec</extracomment>
            <translation>Umdrehung pro Sekunde</translation>
        </message>
        <message>
            <source>Revolutions per Minute</source>
            <extracomment>rsName_eatRevPerMin</extracomment>
            <translation>Umdrehung pro Minute</translation>
        </message>
        <message>
            <source>Revolutions per Hour</source>
            <extracomment>rsName_eatRevPerHr</extracomment>
            <translation>Umdrehung pro Stunde</translation>
        </message>
        <message>
            <source>RPMs</source>
            <extracomment>rsName_eatRPM</extracomment>
            <translation>U/min</translation>
        </message>
        <message>
            <source>Radians per Millisecond</source>
            <extracomment>rsName_eatRadiansPerMillisecond</extracomment>
            <translation>Radiant pro Millisekunde</translation>
        </message>
        <message>
            <source>Radians per Microsecond</source>
            <extracomment>rsName_eatRadiansPerMicrosecond</extracomment>
            <translation>Radiant pro Mikrosekunde</translation>
        </message>
        <message>
            <source>Degrees per Millisecond</source>
            <extracomment>rsName_eatDegreesPerMillisecond</extracomment>
            <translation>Grad pro Millisekunde</translation>
        </message>
        <message>
            <source>Degrees per Microsecond</source>
            <extracomment>rsName_eatDegreesPerMicrosecond</extracomment>
            <translation>Grad pro Mikrosekunde</translation>
        </message>
        <message>
            <source>Radians per Second Squared</source>
            <extracomment>rsName_eatRadiansPerSec2</extracomment>
            <translation>Radiant pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Degrees per Second Squared</source>
            <extracomment>rsName_eatDegreesPerSec2</extracomment>
            <translation>Grad pro Quadratsekunde</translation>
        </message>
        <message>
            <source>Revolutions per Second Squared</source>
            <extracomment>rsName_eatRevPerSec2</extracomment>
            <translation>Umdrehung pro Quadratsekunde</translation>
        </message>
        <message>
            <source>RPM per Second</source>
            <extracomment>rsName_eatRPMPerSec</extracomment>
            <translation>U/min pro Sekunde</translation>
        </message>
        <message>
            <source>Kilograms per Cubic Metre</source>
            <extracomment>rsName_edtKgPerCuM</extracomment>
            <translation>Kilogramm pro Kubikmeter</translation>
        </message>
        <message>
            <source>Kilograms per Cubic Centimetre</source>
            <extracomment>rsName_edtKgPerCuCm</extracomment>
            <translation>Kilogramm pro Kubikzentimeter</translation>
        </message>
        <message>
            <source>Grams per Cubic Metre</source>
            <extracomment>rsName_edtGPerCuM</extracomment>
            <translation>Gramm pro Kubikmeter</translation>
        </message>
        <message>
            <source>Grams per Cubic Centimetre</source>
            <extracomment>rsName_edtGPerCuCm</extracomment>
            <translation>Gramm pro Kubikzentimeter</translation>
        </message>
        <message>
            <source>Pounds per Cubic Foot</source>
            <extracomment>rsName_edtLbsPerCuFt</extracomment>
            <translation>Pfund pro Kubikfuß</translation>
        </message>
        <message>
            <source>Pounds per Cubic Inch</source>
            <extracomment>rsName_edtLbsPerCuIn</extracomment>
            <translation>Pfund pro Kubikzoll</translation>
        </message>
        <message>
            <source>Ounces per Cubic Foot</source>
            <extracomment>rsName_edtOzsPerCuFt</extracomment>
            <translation>Unze pro Kubikfuß</translation>
        </message>
        <message>
            <source>Ounces per Cubic Inch</source>
            <extracomment>rsName_edtOzsPerCuIn</extracomment>
            <translation>Unze pro Kubikzoll</translation>
        </message>
        <message>
            <source>Picograms per Cubic Micron</source>
            <extracomment>rsName_edtPgPerCuMicron</extracomment>
            <translation>Pikogramm pro Kubikmikron</translation>
        </message>
        <message>
            <source>ppm</source>
            <extracomment>rsName_edtppm</extracomment>
            <translation>ppm</translation>
        </message>
        <message>
            <source>Kilograms per Litre</source>
            <extracomment>rsName_edtKilogramsPerLitre</extracomment>
            <translation>Kilogramm pro Liter</translation>
        </message>
        <message>
            <source>Grams per Litre</source>
            <extracomment>rsName_edtGramsPerLitre</extracomment>
            <translation>Gramm pro Liter</translation>
        </message>
        <message>
            <source>Milligrams per Litre</source>
            <extracomment>rsName_edtMilligramsPerLitre</extracomment>
            <translation>Milligramm pro Liter</translation>
        </message>
        <message>
            <source>Milligrams per Decilitre</source>
            <extracomment>rsName_edtMilligramsPerDecilitre</extracomment>
            <translation>Milligramm pro Deziliter</translation>
        </message>
        <message>
            <source>Plasmatic Glucose (mmol/l)</source>
            <extracomment>rsName_edtPlasmaticGlucose</extracomment>
            <translation>Plasmaglukose (mmol/l)</translation>
        </message>
        <message>
            <source>Pounds per Gallon (US)</source>
            <extracomment>rsName_edtPoundsPerUSGallon</extracomment>
            <translation>Pfund pro Gallone (US)</translation>
        </message>
        <message>
            <source>Pounds per Gallon (UK)</source>
            <extracomment>rsName_edtPoundsPerUKGallon</extracomment>
            <translation>Pfund pro Gallone (brit.)</translation>
        </message>
        <message>
            <source>Ounces per Gallon (US)</source>
            <extracomment>rsName_edtOuncesPerUSGallon</extracomment>
            <translation>Unze pro Gallone (US)</translation>
        </message>
        <message>
            <source>Ounces per Gallon (UK)</source>
            <extracomment>rsName_edtOuncesPerUKGallon</extracomment>
            <translation>Unze pro Gallone (brit.)</translation>
        </message>
        <message>
            <source>Earth Densities</source>
            <extracomment>rsName_edtEarthDensities</extracomment>
            <translation>Erddichte</translation>
        </message>
        <message>
            <source>Luna Densities</source>
            <extracomment>rsName_edtLunaDensities</extracomment>
            <translation>Monddichte</translation>
        </message>
        <message>
            <source>Mars Densities</source>
            <extracomment>rsName_edtMarsDensities</extracomment>
            <translation>Marsdichte</translation>
        </message>
        <message>
            <source>Venus Densities</source>
            <extracomment>rsName_edtVenusDensities</extracomment>
            <translation>Venusdichte</translation>
        </message>
        <message>
            <source>Mercury Densities</source>
            <extracomment>rsName_edtMercuryDensities</extracomment>
            <translation>Merkurdichte</translation>
        </message>
        <message>
            <source>Jupiter Densities</source>
            <extracomment>rsName_edtJupiterDensities</extracomment>
            <translation>Jupiterdichte</translation>
        </message>
        <message>
            <source>Saturn Densities</source>
            <extracomment>rsName_edtSaturnDensities</extracomment>
            <translation>Saturndichte</translation>
        </message>
        <message>
            <source>Uranus Densities</source>
            <extracomment>rsName_edtUranusDensities</extracomment>
            <translation>Uranusdichte</translation>
        </message>
        <message>
            <source>Neptune Densities</source>
            <extracomment>rsName_edtNeptuneDensities</extracomment>
            <translation>Neptundichte</translation>
        </message>
        <message>
            <source>Solar Densities</source>
            <extracomment>rsName_edtSolarDensities</extracomment>
            <translation>Sonnendichte</translation>
        </message>
        <message>
            <source>Pascal Seconds</source>
            <extracomment>rsName_evdtPascalSecs</extracomment>
            <translation>Pascalsekunde</translation>
        </message>
        <message>
            <source>Poises</source>
            <extracomment>rsName_evdtPoise</extracomment>
            <translation>Poise</translation>
        </message>
        <message>
            <source>Centipoises</source>
            <extracomment>rsName_evdtCentipoise</extracomment>
            <translation>Zentipoise</translation>
        </message>
        <message>
            <source>Poiseuilles</source>
            <extracomment>rsName_evdtPoiseuille</extracomment>
            <translation>Poiseuille</translation>
        </message>
        <message>
            <source>Reynolds</source>
            <extracomment>rsName_evdtReynolds</extracomment>
            <translation>Reyn</translation>
        </message>
        <message>
            <source>Pound Seconds per Square Foot</source>
            <extracomment>rsName_evdtLbSecsPerSqFt</extracomment>
            <translation>Pfund-Sekunde pro Quadratfuß</translation>
        </message>
        <message>
            <source>Pound Seconds per Square Inch</source>
            <extracomment>rsName_evdtLbSecsPerSqInch</extracomment>
            <translation>Pfund-Sekunde pro Quadratzoll</translation>
        </message>
        <message>
            <source>PSI Seconds</source>
            <extracomment>rsName_evdtPSISecs</extracomment>
            <translation>psi-Sekunde</translation>
        </message>
        <message>
            <source>Dyne Seconds per Square Centimetre</source>
            <extracomment>rsName_evdtDyneSecsPerSqCm</extracomment>
            <translation>Dynsekunde pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Gram Seconds per Square Centimetre</source>
            <extracomment>rsName_evdtGSecsPerSqCM</extracomment>
            <translation>Grammsekunde pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Kilogram Seconds per Square Metre</source>
            <extracomment>rsName_evdtKGSecsPerSqM</extracomment>
            <translation>Kilogrammsekunde pro Quadratmeter</translation>
        </message>
        <message>
            <source>Square Metres per Second</source>
            <extracomment>rsName_evktSqMPerSec</extracomment>
            <translation>Quadratmeter pro Sekunde</translation>
        </message>
        <message>
            <source>Stokes</source>
            <extracomment>rsName_evktStokes</extracomment>
            <translation>Stokes</translation>
        </message>
        <message>
            <source>Centistokes</source>
            <extracomment>rsName_evktCentiStokes</extracomment>
            <translation>Zentistokes</translation>
        </message>
        <message>
            <source>Square Feet per Second</source>
            <extracomment>rsName_evktSqFtPerSec</extracomment>
            <translation>Quadratfuß pro Sekunde</translation>
        </message>
        <message>
            <source>Square Centimetres per Second</source>
            <extracomment>rsName_evktSqCmPerSec</extracomment>
            <translation>Quadratzentimeter pro Sekunde</translation>
        </message>
        <message>
            <source>Coulombs</source>
            <extracomment>rsName_eelcCoulombs</extracomment>
            <translation>Coulomb</translation>
        </message>
        <message>
            <source>Abcoulombs</source>
            <extracomment>rsName_eelcAbcoulombs</extracomment>
            <translation>Abcoulomb</translation>
        </message>
        <message>
            <source>Statcoulombs</source>
            <extracomment>rsName_eelcStatcoulombs</extracomment>
            <translation>Statcoulomb</translation>
        </message>
        <message>
            <source>Kilocoulombs</source>
            <extracomment>rsName_eelcKilocoulombs</extracomment>
            <translation>Kilocoulomb</translation>
        </message>
        <message>
            <source>Megacoulombs</source>
            <extracomment>rsName_eelcMegacoulombs</extracomment>
            <translation>Megacoulomb</translation>
        </message>
        <message>
            <source>Millicoulombs</source>
            <extracomment>rsName_eelcMillicoulombs</extracomment>
            <translation>Millicoulomb</translation>
        </message>
        <message>
            <source>Microcoulombs</source>
            <extracomment>rsName_eelcMicrocoulombs</extracomment>
            <translation>Mikrocoulomb</translation>
        </message>
        <message>
            <source>Ampere Seconds</source>
            <extracomment>rsName_eelcAmpSeconds</extracomment>
            <translation>Amperesekunde</translation>
        </message>
        <message>
            <source>Ampere Minutes</source>
            <extracomment>rsName_eelcAmpMinutes</extracomment>
            <translation>Ampereminute</translation>
        </message>
        <message>
            <source>Ampere Hours</source>
            <extracomment>rsName_eelcAmpHours</extracomment>
            <translation>Amperestunde</translation>
        </message>
        <message>
            <source>Milliamp Hours (mAh)</source>
            <extracomment>rsName_eelcMilliampHours</extracomment>
            <translation>Milliamperestunde (mAh)</translation>
        </message>
        <message>
            <source>Milliamp Seconds (mAs)</source>
            <extracomment>rsName_eelcMilliampSeconds</extracomment>
            <translation>Milliamperesekunde (mAs)</translation>
        </message>
        <message>
            <source>Elementary Charges</source>
            <extracomment>rsName_eelcElementaryCharges</extracomment>
            <translation>Elementarladung</translation>
        </message>
        <message>
            <source>Faradays</source>
            <extracomment>rsName_eelcFaradays</extracomment>
            <translation>Faraday</translation>
        </message>
        <message>
            <source>Franklins</source>
            <extracomment>rsName_eelcFranklins</extracomment>
            <translation>Franklin</translation>
        </message>
        <message>
            <source>Farad Volts</source>
            <extracomment>rsName_eelcFaradVolts</extracomment>
            <translation>Faradvolt</translation>
        </message>
        <message>
            <source>Electrostatic Unit of Charge</source>
            <extracomment>rsName_eelcESU</extracomment>
            <translation>Elektrostatische Ladungseinheit</translation>
        </message>
        <message>
            <source>Electromagnetic Unit of Charge</source>
            <extracomment>rsName_eelcEMU</extracomment>
            <translation>Elektromagnetische Ladungseinheit</translation>
        </message>
        <message>
            <source>Gigacoulombs</source>
            <extracomment>rsName_eelcGigacoulombs</extracomment>
            <translation>Gigacoulomb</translation>
        </message>
        <message>
            <source>Nanocoulombs</source>
            <extracomment>rsName_eelcNanocoulombs</extracomment>
            <translation>Nanocoulomb</translation>
        </message>
        <message>
            <source>Coulombs (International)</source>
            <extracomment>rsName_eelcCoulombsInternational</extracomment>
            <translation>Coulomb (international)</translation>
        </message>
        <message>
            <source>Amperes</source>
            <extracomment>rsName_ecAmps</extracomment>
            <translation>Ampere</translation>
        </message>
        <message>
            <source>Abamperes</source>
            <extracomment>rsName_ecAbamps</extracomment>
            <translation>Abampere</translation>
        </message>
        <message>
            <source>Statamperes</source>
            <extracomment>rsName_ecStatamps</extracomment>
            <translation>Statampere</translation>
        </message>
        <message>
            <source>Kiloamperes</source>
            <extracomment>rsName_ecKiloamps</extracomment>
            <translation>Kiloampere</translation>
        </message>
        <message>
            <source>Megaamperes</source>
            <extracomment>rsName_ecMegaamps</extracomment>
            <translation>Megaampere</translation>
        </message>
        <message>
            <source>Milliamperes</source>
            <extracomment>rsName_ecMilliamps</extracomment>
            <translation>Milliampere</translation>
        </message>
        <message>
            <source>Microamperes</source>
            <extracomment>rsName_ecMicroamps</extracomment>
            <translation>Mikroampere</translation>
        </message>
        <message>
            <source>Coulombs per Second</source>
            <extracomment>rsName_ecCoulombsPerSecond</extracomment>
            <translation>Coulomb pro Sekunde</translation>
        </message>
        <message>
            <source>Coulombs per Minute</source>
            <extracomment>rsName_ecCoulombsperMinute</extracomment>
            <translation>Coulomb pro Minute</translation>
        </message>
        <message>
            <source>Coulombs per Hour</source>
            <extracomment>rsName_ecCoulombsperHour</extracomment>
            <translation>Coulomb pro Stunde</translation>
        </message>
        <message>
            <source>Biots</source>
            <extracomment>rsName_ecBiot</extracomment>
            <translation>Biot</translation>
        </message>
        <message>
            <source>Electromagnetic Unit of Current</source>
            <extracomment>rsName_ecEMU</extracomment>
            <translation>Elektromagnetische Stromeinheit</translation>
        </message>
        <message>
            <source>Electrostatic Unit of Current</source>
            <extracomment>rsName_ecESU</extracomment>
            <translation>Elektrostatische Stromeinheit</translation>
        </message>
        <message>
            <source>Nanoamperes</source>
            <extracomment>rsName_ecNanoamps</extracomment>
            <translation>Nanoampere</translation>
        </message>
        <message>
            <source>Gilberts</source>
            <extracomment>rsName_ecGilberts</extracomment>
            <translation>Gilbert</translation>
        </message>
        <message>
            <source>Gigaamperes</source>
            <extracomment>rsName_ecGigaamps</extracomment>
            <translation>Gigaampere</translation>
        </message>
        <message>
            <source>Amperes (International)</source>
            <extracomment>rsName_ecAmpsInternational</extracomment>
            <translation>Ampere (international)</translation>
        </message>
        <message>
            <source>Amperes per Metre</source>
            <extracomment>rsName_emtAmperesPerMetre</extracomment>
            <translation>Ampere pro Meter</translation>
        </message>
        <message>
            <source>Oersteds</source>
            <extracomment>rsName_emtOersteds</extracomment>
            <translation>Oersted</translation>
        </message>
        <message>
            <source>Gilberts per Metre</source>
            <extracomment>rsName_emtGilbertsPerMetre</extracomment>
            <translation>Gilbert pro Meter</translation>
        </message>
        <message>
            <source>Gilberts per Centimetre</source>
            <extracomment>rsName_emtGilbertsPerCentimetre</extracomment>
            <translation>Gilbert pro Zentimeter</translation>
        </message>
        <message>
            <source>Amperes per Centimetre</source>
            <extracomment>rsName_emtAmperesPerCentimetre</extracomment>
            <translation>Ampere pro Zentimeter</translation>
        </message>
        <message>
            <source>Webers</source>
            <extracomment>rsName_emWebers</extracomment>
            <translation>Weber</translation>
        </message>
        <message>
            <source>Maxwells</source>
            <extracomment>rsName_emMaxwells</extracomment>
            <translation>Maxwell</translation>
        </message>
        <message>
            <source>Milliwebers</source>
            <extracomment>rsName_emMilliwebers</extracomment>
            <translation>Milliweber</translation>
        </message>
        <message>
            <source>Microwebers</source>
            <extracomment>rsName_emMicrowebers</extracomment>
            <translation>Mikroweber</translation>
        </message>
        <message>
            <source>Lines</source>
            <extracomment>rsName_emLines</extracomment>
            <translation>Line</translation>
        </message>
        <message>
            <source>Kilolines</source>
            <extracomment>rsName_emKilolines</extracomment>
            <translation>Kiloline</translation>
        </message>
        <message>
            <source>Megalines</source>
            <extracomment>rsName_emMegalines</extracomment>
            <translation>Megaline</translation>
        </message>
        <message>
            <source>Joules Per Ampere</source>
            <extracomment>rsName_emJoulesPerAmp</extracomment>
            <translation>Joule pro Ampere</translation>
        </message>
        <message>
            <source>Volt Seconds</source>
            <extracomment>rsName_emVoltSeconds</extracomment>
            <translation>Voltsekunde</translation>
        </message>
        <message>
            <source>Teslas</source>
            <extracomment>rsName_emTeslas</extracomment>
            <translation>Tesla</translation>
        </message>
        <message>
            <source>Gauss</source>
            <extracomment>rsName_emGauss</extracomment>
            <translation>Gauß</translation>
        </message>
        <message>
            <source>Milliteslas</source>
            <extracomment>rsName_emMilliteslas</extracomment>
            <translation>Millitesla</translation>
        </message>
        <message>
            <source>Microteslas</source>
            <extracomment>rsName_emMicroteslas</extracomment>
            <translation>Mikrotesla</translation>
        </message>
        <message>
            <source>Nanoteslas</source>
            <extracomment>rsName_emNanoteslas</extracomment>
            <translation>Nanotesla</translation>
        </message>
        <message>
            <source>Gammas</source>
            <extracomment>rsName_emGammas</extracomment>
            <translation>Gamma</translation>
        </message>
        <message>
            <source>Webers Per Square Metre</source>
            <extracomment>rsName_emWebersPerSqM</extracomment>
            <translation>Weber pro Quadratmeter</translation>
        </message>
        <message>
            <source>Webers Per Square Centimetre</source>
            <extracomment>rsName_emWebersPerSqCm</extracomment>
            <translation>Weber pro Quadratzentimeter</translation>
        </message>
        <message>
            <source>Maxwells Per Square Inch</source>
            <extracomment>rsName_emMaxwellsPerSqIn</extracomment>
            <translation>Maxwell pro Quadratzoll</translation>
        </message>
        <message>
            <source>Lines Per Square Inch</source>
            <extracomment>rsName_emLinesPerSqIn</extracomment>
            <translation>Line pro Quadratzoll</translation>
        </message>
        <message>
            <source>Sieverts</source>
            <extracomment>rsName_erdSieverts</extracomment>
            <translation>Sievert</translation>
        </message>
        <message>
            <source>Millisieverts</source>
            <extracomment>rsName_erdMillisieverts</extracomment>
            <translation>Millisievert</translation>
        </message>
        <message>
            <source>Microsieverts</source>
            <extracomment>rsName_erdMicrosieverts</extracomment>
            <translation>Mikrosievert</translation>
        </message>
        <message>
            <source>Rems</source>
            <extracomment>rsName_erdRems</extracomment>
            <translation>rem</translation>
        </message>
        <message>
            <source>Millirems</source>
            <extracomment>rsName_erdMillirems</extracomment>
            <translation>Millirem</translation>
        </message>
        <message>
            <source>Microrems</source>
            <extracomment>rsName_erdMicrorems</extracomment>
            <translation>Mikrorem</translation>
        </message>
        <message>
            <source>Grays</source>
            <extracomment>rsName_eraGrays</extracomment>
            <translation>Gray</translation>
        </message>
        <message>
            <source>Milligrays</source>
            <extracomment>rsName_eraMilligrays</extracomment>
            <translation>Milligray</translation>
        </message>
        <message>
            <source>Micrograys</source>
            <extracomment>rsName_eraMicrograys</extracomment>
            <translation>Mikrogray</translation>
        </message>
        <message>
            <source>Rads</source>
            <extracomment>rsName_eraRads</extracomment>
            <translation>rad</translation>
        </message>
        <message>
            <source>Millirads</source>
            <extracomment>rsName_eraMillirads</extracomment>
            <translation>Millirad</translation>
        </message>
        <message>
            <source>Microrads</source>
            <extracomment>rsName_eraMicrorads</extracomment>
            <translation>Mikrorad</translation>
        </message>
        <message>
            <source>Temperature cannot be below -459.67 F</source>
            <extracomment>rsFahrenheitBelowZero</extracomment>
            <translation>Die Temperatur kann nicht unter -459,67 °F liegen</translation>
        </message>
        <message>
            <source>Temperature cannot be below -273.15 C</source>
            <extracomment>rsCelsiusBelowZero</extracomment>
            <translation>Die Temperatur kann nicht unter -273,15 °C liegen</translation>
        </message>
        <message>
            <source>Temperature cannot be below 0 Kelvin</source>
            <extracomment>rsKelvinBelowZero</extracomment>
            <translation>Die Temperatur kann nicht unter 0 Kelvin liegen</translation>
        </message>
        <message>
            <source>Temperature cannot be below 0 Rankine</source>
            <extracomment>rsRankineBelowZero</extracomment>
            <translation>Die Temperatur kann nicht unter 0 Rankine liegen</translation>
        </message>
        <message>
            <source>Kilometres per Litre cannot be 0!</source>
            <extracomment>rsKPLZero</extracomment>
            <translation>Kilometer pro Liter darf nicht 0 sein!</translation>
        </message>
        <message>
            <source>Litres per 100 KM cannot be 0!</source>
            <extracomment>rsLP100KZero</extracomment>
            <translation>Liter pro 100 km darf nicht 0 sein!</translation>
        </message>
        <message>
            <source>Unknown unit '%s'</source>
            <extracomment>rsUnknownUnit</extracomment>
            <translation>Unbekannte Einheit '%s'</translation>
        </message>
        <message>
            <source>Unknown quantity '%s'</source>
            <extracomment>rsUnknownQuantity</extracomment>
            <translation>Unbekannte Größe '%s'</translation>
        </message>
        <message>
            <source>Days (Sidereal - Sun)</source>
            <extracomment>rsSunDaysSidereal</extracomment>
            <translation>Tag (siderisch – Sonne)</translation>
        </message>
        <message>
            <source>Watts per Metre Kelvin</source>
            <extracomment>rsThermWattsPerMetreKelvin</extracomment>
            <translation>Watt pro Meter-Kelvin</translation>
        </message>
        <message>
            <source>Watts per Centimetre Celsius</source>
            <extracomment>rsThermWattsPerCentimetreCelsius</extracomment>
            <translation>Watt pro Zentimeter-Celsius</translation>
        </message>
        <message>
            <source>Kilowatts per Metre Kelvin</source>
            <extracomment>rsThermKilowattsPerMetreKelvin</extracomment>
            <translation>Kilowatt pro Meter-Kelvin</translation>
        </message>
        <message>
            <source>Calories (IT) per Second per Centimetre Celsius</source>
            <extracomment>rsThermCaloriesITPerSecCmC</extracomment>
            <translation>Kalorie (IT) pro Sekunde pro Zentimeter-Celsius</translation>
        </message>
        <message>
            <source>Calories (Th) per Second per Centimetre Celsius</source>
            <extracomment>rsThermCaloriesThPerSecCmC</extracomment>
            <translation>Kalorie (th) pro Sekunde pro Zentimeter-Celsius</translation>
        </message>
        <message>
            <source>Kilocalories (IT) per Hour per Metre Celsius</source>
            <extracomment>rsThermKilocaloriesITPerHourMC</extracomment>
            <translation>Kilokalorie (IT) pro Stunde pro Meter-Celsius</translation>
        </message>
        <message>
            <source>BTUs (IT) per Hour per Foot Fahrenheit</source>
            <extracomment>rsThermBTUsITPerHourFootF</extracomment>
            <translation>BTU (IT) pro Stunde pro Fuß-Fahrenheit</translation>
        </message>
        <message>
            <source>BTUs (IT) Inches per Hour per Sq Foot Fahrenheit</source>
            <extracomment>rsThermBTUsITInchPerHourSqFootF</extracomment>
            <translation>BTU (IT)-Zoll pro Stunde pro Quadratfuß-Fahrenheit</translation>
        </message>
        <message>
            <source>Watts per Foot Fahrenheit</source>
            <extracomment>rsThermWattsPerFootFahrenheit</extracomment>
            <translation>Watt pro Fuß-Fahrenheit</translation>
        </message>
    </context>
    <context>
        <name>QORKITImperial</name>
        <message>
            <source>Ratio cannot be 0</source>
            <extracomment>rsImperialRatioZero</extracomment>
            <translation>Das Verhältnis darf nicht 0 sein</translation>
        </message>
        <message>
            <source>Cannot have different Powers</source>
            <extracomment>rsImperialDifferentPowers</extracomment>
            <translation>Unterschiedliche Potenzen sind nicht möglich</translation>
        </message>
        <message>
            <source>Cannot have different Units</source>
            <extracomment>rsImperialDifferentUnits</extracomment>
            <translation>Unterschiedliche Einheiten sind nicht möglich</translation>
        </message>
        <message>
            <source>Cannot Find Square Root with an odd Power</source>
            <extracomment>rsImperialOddPowerRoot</extracomment>
            <translation>Keine Quadratwurzel bei ungerader Potenz</translation>
        </message>
        <message>
            <source>const</source>
            <extracomment>rsImperialConst</extracomment>
            <translation>konst</translation>
        </message>
        <message>
            <source>Power</source>
            <extracomment>rsImperialPower</extracomment>
            <translation>Potenz</translation>
        </message>
    </context>
    <context>
        <name>QORKITFloatEdit</name>
        <message>
            <source>'%s' is outside the allowed range</source>
            <extracomment>rsValueOutOfBounds</extracomment>
            <translation>'%s' liegt außerhalb des erlaubten Bereichs</translation>
        </message>
        <message>
            <source>The value is not a finite number</source>
            <extracomment>rsValueNotFinite</extracomment>
            <translation>Der Wert ist keine endliche Zahl</translation>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_Dialogs</name>
        <message>
            <source>Paper Tape</source>
            <extracomment>rsTapeHint</extracomment>
            <translation>Papierstreifen</translation>
        </message>
        <message>
            <source>Copy Tape</source>
            <extracomment>rsTapeCopy</extracomment>
            <translation>Papierstreifen kopieren</translation>
        </message>
        <message>
            <source>value</source>
            <extracomment>rsDisplayAccName</extracomment>
            <translation>Wert</translation>
        </message>
        <message>
            <source>The value being entered or the last result</source>
            <extracomment>rsDisplayAccDescription</extracomment>
            <translation>Der eingegebene Wert oder das letzte Ergebnis</translation>
        </message>
        <message>
            <source>memory</source>
            <extracomment>rsMemoryAccName</extracomment>
            <translation>Speicher</translation>
        </message>
        <message>
            <source>The value held in memory</source>
            <extracomment>rsMemoryAccDescription</extracomment>
            <translation>Der Wert im Speicher</translation>
        </message>
        <message>
            <source>decimal places</source>
            <extracomment>rsDecimalsAccName</extracomment>
            <translation>Nachkommastellen</translation>
        </message>
        <message>
            <source>How many decimal places the value shows</source>
            <extracomment>rsDecimalsAccDescription</extracomment>
            <translation>Wie viele Nachkommastellen der Wert zeigt</translation>
        </message>
        <message>
            <source>number base</source>
            <extracomment>rsBaseAccName</extracomment>
            <translation>Zahlenbasis</translation>
        </message>
        <message>
            <source>bit length</source>
            <extracomment>rsBitsAccName</extracomment>
            <translation>Bitlänge</translation>
        </message>
        <message>
            <source>Every number and operation so far, newest last</source>
            <extracomment>rsTapeAccDescription</extracomment>
            <translation>Alle bisherigen Zahlen und Operationen, die neueste zuletzt</translation>
        </message>
        <message>
            <source>zero</source>
            <extracomment>ZeroBtn name</extracomment>
            <translation>null</translation>
        </message>
        <message>
            <source>Enters the digit 0</source>
            <extracomment>ZeroBtn description</extracomment>
            <translation>Gibt die Ziffer 0 ein</translation>
        </message>
        <message>
            <source>one</source>
            <extracomment>OneBtn name</extracomment>
            <translation>eins</translation>
        </message>
        <message>
            <source>Enters the digit 1</source>
            <extracomment>OneBtn description</extracomment>
            <translation>Gibt die Ziffer 1 ein</translation>
        </message>
        <message>
            <source>two</source>
            <extracomment>TwoBtn name</extracomment>
            <translation>zwei</translation>
        </message>
        <message>
            <source>Enters the digit 2</source>
            <extracomment>TwoBtn description</extracomment>
            <translation>Gibt die Ziffer 2 ein</translation>
        </message>
        <message>
            <source>three</source>
            <extracomment>ThreeBtn name</extracomment>
            <translation>drei</translation>
        </message>
        <message>
            <source>Enters the digit 3</source>
            <extracomment>ThreeBtn description</extracomment>
            <translation>Gibt die Ziffer 3 ein</translation>
        </message>
        <message>
            <source>four</source>
            <extracomment>FourBtn name</extracomment>
            <translation>vier</translation>
        </message>
        <message>
            <source>Enters the digit 4</source>
            <extracomment>FourBtn description</extracomment>
            <translation>Gibt die Ziffer 4 ein</translation>
        </message>
        <message>
            <source>five</source>
            <extracomment>FiveBtn name</extracomment>
            <translation>fünf</translation>
        </message>
        <message>
            <source>Enters the digit 5</source>
            <extracomment>FiveBtn description</extracomment>
            <translation>Gibt die Ziffer 5 ein</translation>
        </message>
        <message>
            <source>six</source>
            <extracomment>SixBtn name</extracomment>
            <translation>sechs</translation>
        </message>
        <message>
            <source>Enters the digit 6</source>
            <extracomment>SixBtn description</extracomment>
            <translation>Gibt die Ziffer 6 ein</translation>
        </message>
        <message>
            <source>seven</source>
            <extracomment>SevenBtn name</extracomment>
            <translation>sieben</translation>
        </message>
        <message>
            <source>Enters the digit 7</source>
            <extracomment>SevenBtn description</extracomment>
            <translation>Gibt die Ziffer 7 ein</translation>
        </message>
        <message>
            <source>eight</source>
            <extracomment>EightBtn name</extracomment>
            <translation>acht</translation>
        </message>
        <message>
            <source>Enters the digit 8</source>
            <extracomment>EightBtn description</extracomment>
            <translation>Gibt die Ziffer 8 ein</translation>
        </message>
        <message>
            <source>nine</source>
            <extracomment>NineBtn name</extracomment>
            <translation>neun</translation>
        </message>
        <message>
            <source>Enters the digit 9</source>
            <extracomment>NineBtn description</extracomment>
            <translation>Gibt die Ziffer 9 ein</translation>
        </message>
        <message>
            <source>decimal point</source>
            <extracomment>PointBtn name</extracomment>
            <translation>Dezimaltrennzeichen</translation>
        </message>
        <message>
            <source>Starts the decimals of the number</source>
            <extracomment>PointBtn description</extracomment>
            <translation>Beginnt die Nachkommastellen der Zahl</translation>
        </message>
        <message>
            <source>plus</source>
            <extracomment>AddBtn name</extracomment>
            <translation>plus</translation>
        </message>
        <message>
            <source>Adds the next number</source>
            <extracomment>AddBtn description</extracomment>
            <translation>Addiert die nächste Zahl</translation>
        </message>
        <message>
            <source>minus</source>
            <extracomment>SubtractBtn name</extracomment>
            <translation>minus</translation>
        </message>
        <message>
            <source>Subtracts the next number</source>
            <extracomment>SubtractBtn description</extracomment>
            <translation>Subtrahiert die nächste Zahl</translation>
        </message>
        <message>
            <source>times</source>
            <extracomment>MultiplyBtn name</extracomment>
            <translation>mal</translation>
        </message>
        <message>
            <source>Multiplies by the next number</source>
            <extracomment>MultiplyBtn description</extracomment>
            <translation>Multipliziert mit der nächsten Zahl</translation>
        </message>
        <message>
            <source>divided by</source>
            <extracomment>DivideBtn name</extracomment>
            <translation>geteilt durch</translation>
        </message>
        <message>
            <source>Divides by the next number</source>
            <extracomment>DivideBtn description</extracomment>
            <translation>Teilt durch die nächste Zahl</translation>
        </message>
        <message>
            <source>equals</source>
            <extracomment>EqualsBtn name</extracomment>
            <translation>gleich</translation>
        </message>
        <message>
            <source>Completes the calculation and shows the result</source>
            <extracomment>EqualsBtn description</extracomment>
            <translation>Schließt die Rechnung ab und zeigt das Ergebnis</translation>
        </message>
        <message>
            <source>open bracket</source>
            <extracomment>LeftBracketBtn name</extracomment>
            <translation>Klammer auf</translation>
        </message>
        <message>
            <source>Opens a bracket</source>
            <extracomment>LeftBracketBtn description</extracomment>
            <translation>Öffnet eine Klammer</translation>
        </message>
        <message>
            <source>close bracket</source>
            <extracomment>RightBracketBtn name</extracomment>
            <translation>Klammer zu</translation>
        </message>
        <message>
            <source>Closes the bracket and calculates its contents</source>
            <extracomment>RightBracketBtn description</extracomment>
            <translation>Schließt die Klammer und berechnet ihren Inhalt</translation>
        </message>
        <message>
            <source>all clear</source>
            <extracomment>AllClearBtn name</extracomment>
            <translation>alles löschen</translation>
        </message>
        <message>
            <source>Clears the calculation and the tape; the memory is kept</source>
            <extracomment>AllClearBtn description</extracomment>
            <translation>Löscht die Rechnung und den Papierstreifen; der Speicher bleibt</translation>
        </message>
        <message>
            <source>clear entry</source>
            <extracomment>ClearBtn name, ClearBtn name</extracomment>
            <translation>Eingabe löschen</translation>
        </message>
        <message>
            <source>Clears the value being entered</source>
            <extracomment>ClearBtn description, ClearBtn description</extracomment>
            <translation>Löscht den eingegebenen Wert</translation>
        </message>
        <message>
            <source>backspace</source>
            <extracomment>BackSpaceBtn name</extracomment>
            <translation>Rückschritt</translation>
        </message>
        <message>
            <source>Deletes the last digit entered</source>
            <extracomment>BackSpaceBtn description</extracomment>
            <translation>Löscht die zuletzt eingegebene Ziffer</translation>
        </message>
        <message>
            <source>memory clear</source>
            <extracomment>MemoryClearBtn name</extracomment>
            <translation>Speicher löschen</translation>
        </message>
        <message>
            <source>Sets the memory to zero</source>
            <extracomment>MemoryClearBtn description</extracomment>
            <translation>Setzt den Speicher auf null</translation>
        </message>
        <message>
            <source>memory recall</source>
            <extracomment>MemoryRecallBtn name</extracomment>
            <translation>Speicher abrufen</translation>
        </message>
        <message>
            <source>Shows the value held in memory</source>
            <extracomment>MemoryRecallBtn description</extracomment>
            <translation>Zeigt den Wert im Speicher</translation>
        </message>
        <message>
            <source>memory add</source>
            <extracomment>MemoryAddBtn name</extracomment>
            <translation>Speicher plus</translation>
        </message>
        <message>
            <source>Adds the value to the memory</source>
            <extracomment>MemoryAddBtn description</extracomment>
            <translation>Addiert den Wert zum Speicher</translation>
        </message>
        <message>
            <source>memory subtract</source>
            <extracomment>MemorySubtractBtn name</extracomment>
            <translation>Speicher minus</translation>
        </message>
        <message>
            <source>Subtracts the value from the memory</source>
            <extracomment>MemorySubtractBtn description</extracomment>
            <translation>Subtrahiert den Wert vom Speicher</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>ExitBtn name</extracomment>
            <translation>OK</translation>
        </message>
        <message>
            <source>Closes the calculator and takes the result</source>
            <extracomment>ExitBtn description</extracomment>
            <translation>Schließt den Rechner und übernimmt das Ergebnis</translation>
        </message>
        <message>
            <source>cancel</source>
            <extracomment>CancelBtn name</extracomment>
            <translation>abbrechen</translation>
        </message>
        <message>
            <source>Closes the calculator without taking the result</source>
            <extracomment>CancelBtn description</extracomment>
            <translation>Schließt den Rechner, ohne das Ergebnis zu übernehmen</translation>
        </message>
        <message>
            <source>copy</source>
            <extracomment>CopyBtn name</extracomment>
            <translation>kopieren</translation>
        </message>
        <message>
            <source>Copies the value to the clipboard</source>
            <extracomment>CopyBtn description</extracomment>
            <translation>Kopiert den Wert in die Zwischenablage</translation>
        </message>
        <message>
            <source>paste</source>
            <extracomment>PasteBtn name</extracomment>
            <translation>einfügen</translation>
        </message>
        <message>
            <source>Enters the number on the clipboard</source>
            <extracomment>PasteBtn description</extracomment>
            <translation>Gibt die Zahl aus der Zwischenablage ein</translation>
        </message>
        <message>
            <source>change sign</source>
            <extracomment>ChangeSignBtn name</extracomment>
            <translation>Vorzeichen wechseln</translation>
        </message>
        <message>
            <source>Changes the sign of the value</source>
            <extracomment>ChangeSignBtn description</extracomment>
            <translation>Wechselt das Vorzeichen des Werts</translation>
        </message>
        <message>
            <source>power</source>
            <extracomment>PowerBtn name</extracomment>
            <translation>Potenz</translation>
        </message>
        <message>
            <source>Raises the value to the power of the next number; with inverse, takes that root</source>
            <extracomment>PowerBtn description</extracomment>
            <translation>Potenziert den Wert mit der nächsten Zahl; mit Umkehrung die entsprechende Wurzel</translation>
        </message>
        <message>
            <source>pi</source>
            <extracomment>PiBtn name</extracomment>
            <translation>Pi</translation>
        </message>
        <message>
            <source>Enters the constant pi</source>
            <extracomment>PiBtn description</extracomment>
            <translation>Gibt die Konstante Pi ein</translation>
        </message>
        <message>
            <source>Euler's number</source>
            <extracomment>EBtn name</extracomment>
            <translation>Eulersche Zahl</translation>
        </message>
        <message>
            <source>Enters the constant e</source>
            <extracomment>EBtn description</extracomment>
            <translation>Gibt die Konstante e ein</translation>
        </message>
        <message>
            <source>square</source>
            <extracomment>SquareBtn name</extracomment>
            <translation>Quadrat</translation>
        </message>
        <message>
            <source>Squares the value</source>
            <extracomment>SquareBtn description</extracomment>
            <translation>Quadriert den Wert</translation>
        </message>
        <message>
            <source>square root</source>
            <extracomment>SqRootBtn name</extracomment>
            <translation>Quadratwurzel</translation>
        </message>
        <message>
            <source>Takes the square root of the value</source>
            <extracomment>SqRootBtn description</extracomment>
            <translation>Zieht die Quadratwurzel aus dem Wert</translation>
        </message>
        <message>
            <source>reciprocal</source>
            <extracomment>InvertBtn name</extracomment>
            <translation>Kehrwert</translation>
        </message>
        <message>
            <source>Divides one by the value</source>
            <extracomment>InvertBtn description</extracomment>
            <translation>Teilt eins durch den Wert</translation>
        </message>
        <message>
            <source>common logarithm</source>
            <extracomment>LogBtn name</extracomment>
            <translation>Zehnerlogarithmus</translation>
        </message>
        <message>
            <source>Logarithm to base 10; with inverse, ten to the power of the value</source>
            <extracomment>LogBtn description</extracomment>
            <translation>Logarithmus zur Basis 10; mit Umkehrung zehn hoch den Wert</translation>
        </message>
        <message>
            <source>natural logarithm</source>
            <extracomment>LNBtn name</extracomment>
            <translation>natürlicher Logarithmus</translation>
        </message>
        <message>
            <source>Logarithm to base e; with inverse, e to the power of the value</source>
            <extracomment>LNBtn description</extracomment>
            <translation>Logarithmus zur Basis e; mit Umkehrung e hoch den Wert</translation>
        </message>
        <message>
            <source>binary logarithm</source>
            <extracomment>Lg2btn name</extracomment>
            <translation>Zweierlogarithmus</translation>
        </message>
        <message>
            <source>Logarithm to base 2; with inverse, two to the power of the value</source>
            <extracomment>Lg2btn description</extracomment>
            <translation>Logarithmus zur Basis 2; mit Umkehrung zwei hoch den Wert</translation>
        </message>
        <message>
            <source>sine</source>
            <extracomment>SinBtn name</extracomment>
            <translation>Sinus</translation>
        </message>
        <message>
            <source>Sine of the value; with inverse the arcsine, with hyperbolic the hyperbolic sine</source>
            <extracomment>SinBtn description</extracomment>
            <translation>Sinus des Werts; mit Umkehrung der Arkussinus, hyperbolisch der Sinus hyperbolicus</translation>
        </message>
        <message>
            <source>cosine</source>
            <extracomment>CosBtn name</extracomment>
            <translation>Kosinus</translation>
        </message>
        <message>
            <source>Cosine of the value; with inverse the arccosine, with hyperbolic the hyperbolic cosine</source>
            <extracomment>CosBtn description</extracomment>
            <translation>Kosinus des Werts; mit Umkehrung der Arkuskosinus, hyperbolisch der Kosinus hyperbolicus</translation>
        </message>
        <message>
            <source>tangent</source>
            <extracomment>TanBtn name</extracomment>
            <translation>Tangens</translation>
        </message>
        <message>
            <source>Tangent of the value; with inverse the arctangent, with hyperbolic the hyperbolic tangent</source>
            <extracomment>TanBtn description</extracomment>
            <translation>Tangens des Werts; mit Umkehrung der Arkustangens, hyperbolisch der Tangens hyperbolicus</translation>
        </message>
        <message>
            <source>inverse</source>
            <extracomment>InvBtn name</extracomment>
            <translation>Umkehrung</translation>
        </message>
        <message>
            <source>Switches the next function to its inverse</source>
            <extracomment>InvBtn description</extracomment>
            <translation>Schaltet die nächste Funktion auf ihre Umkehrfunktion</translation>
        </message>
        <message>
            <source>hyperbolic</source>
            <extracomment>HypBtn name</extracomment>
            <translation>hyperbolisch</translation>
        </message>
        <message>
            <source>Switches the next trigonometric function to its hyperbolic form</source>
            <extracomment>HypBtn description</extracomment>
            <translation>Schaltet die nächste Winkelfunktion auf ihre hyperbolische Form</translation>
        </message>
        <message>
            <source>percent</source>
            <extracomment>PercentBtn name</extracomment>
            <translation>Prozent</translation>
        </message>
        <message>
            <source>Takes the value as a percentage</source>
            <extracomment>PercentBtn description</extracomment>
            <translation>Nimmt den Wert als Prozentsatz</translation>
        </message>
        <message>
            <source>angle unit</source>
            <extracomment>RadBtn name</extracomment>
            <translation>Winkeleinheit</translation>
        </message>
        <message>
            <source>Switches between degrees, radians and gradians</source>
            <extracomment>RadBtn description</extracomment>
            <translation>Wechselt zwischen Grad, Bogenmaß und Gon</translation>
        </message>
        <message>
            <source>exponent</source>
            <extracomment>ExpBtn name</extracomment>
            <translation>Exponent</translation>
        </message>
        <message>
            <source>Starts the power of ten of the number</source>
            <extracomment>ExpBtn description</extracomment>
            <translation>Beginnt die Zehnerpotenz der Zahl</translation>
        </message>
        <message>
            <source>hex digit A</source>
            <extracomment>ABtn name</extracomment>
            <translation>Hex-Ziffer A</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit A</source>
            <extracomment>ABtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer A ein</translation>
        </message>
        <message>
            <source>hex digit B</source>
            <extracomment>BBtn name</extracomment>
            <translation>Hex-Ziffer B</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit B</source>
            <extracomment>BBtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer B ein</translation>
        </message>
        <message>
            <source>hex digit C</source>
            <extracomment>CBtn name</extracomment>
            <translation>Hex-Ziffer C</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit C</source>
            <extracomment>CBtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer C ein</translation>
        </message>
        <message>
            <source>hex digit D</source>
            <extracomment>DBtn name</extracomment>
            <translation>Hex-Ziffer D</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit D</source>
            <extracomment>DBtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer D ein</translation>
        </message>
        <message>
            <source>hex digit E</source>
            <extracomment>EBtn name</extracomment>
            <translation>Hex-Ziffer E</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit E</source>
            <extracomment>EBtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer E ein</translation>
        </message>
        <message>
            <source>hex digit F</source>
            <extracomment>FBtn name</extracomment>
            <translation>Hex-Ziffer F</translation>
        </message>
        <message>
            <source>Enters the hexadecimal digit F</source>
            <extracomment>FBtn description</extracomment>
            <translation>Gibt die Hexadezimalziffer F ein</translation>
        </message>
        <message>
            <source>modulo</source>
            <extracomment>ModBtn name</extracomment>
            <translation>modulo</translation>
        </message>
        <message>
            <source>Remainder of the division by the next number</source>
            <extracomment>ModBtn description</extracomment>
            <translation>Rest der Division durch die nächste Zahl</translation>
        </message>
        <message>
            <source>bitwise and</source>
            <extracomment>ANDBtn name</extracomment>
            <translation>bitweises Und</translation>
        </message>
        <message>
            <source>Bits set in both numbers</source>
            <extracomment>ANDBtn description</extracomment>
            <translation>Bits, die in beiden Zahlen gesetzt sind</translation>
        </message>
        <message>
            <source>bitwise or</source>
            <extracomment>ORBtn name</extracomment>
            <translation>bitweises Oder</translation>
        </message>
        <message>
            <source>Bits set in either number</source>
            <extracomment>ORBtn description</extracomment>
            <translation>Bits, die in einer der Zahlen gesetzt sind</translation>
        </message>
        <message>
            <source>bitwise exclusive or</source>
            <extracomment>XORBtn name</extracomment>
            <translation>bitweises exklusives Oder</translation>
        </message>
        <message>
            <source>Bits set in exactly one of the numbers</source>
            <extracomment>XORBtn description</extracomment>
            <translation>Bits, die in genau einer der Zahlen gesetzt sind</translation>
        </message>
        <message>
            <source>bitwise not and</source>
            <extracomment>NANDBtn name</extracomment>
            <translation>bitweises Nicht-Und</translation>
        </message>
        <message>
            <source>Bits not set in both numbers</source>
            <extracomment>NANDBtn description</extracomment>
            <translation>Bits, die nicht in beiden Zahlen gesetzt sind</translation>
        </message>
        <message>
            <source>bitwise not or</source>
            <extracomment>NORBtn name</extracomment>
            <translation>bitweises Nicht-Oder</translation>
        </message>
        <message>
            <source>Bits set in neither number</source>
            <extracomment>NORBtn description</extracomment>
            <translation>Bits, die in keiner der Zahlen gesetzt sind</translation>
        </message>
        <message>
            <source>bitwise not exclusive or</source>
            <extracomment>XNORBtn name</extracomment>
            <translation>bitweises exklusives Nicht-Oder</translation>
        </message>
        <message>
            <source>Bits equal in both numbers</source>
            <extracomment>XNORBtn description</extracomment>
            <translation>Bits, die in beiden Zahlen gleich sind</translation>
        </message>
        <message>
            <source>bitwise not</source>
            <extracomment>NotBtn name</extracomment>
            <translation>bitweises Nicht</translation>
        </message>
        <message>
            <source>Inverts every bit of the value</source>
            <extracomment>NotBtn description</extracomment>
            <translation>Kehrt jedes Bit des Werts um</translation>
        </message>
        <message>
            <source>negate</source>
            <extracomment>NEGBtn name</extracomment>
            <translation>negieren</translation>
        </message>
        <message>
            <source>Changes the sign of the value (two's complement)</source>
            <extracomment>NEGBtn description</extracomment>
            <translation>Wechselt das Vorzeichen des Werts (Zweierkomplement)</translation>
        </message>
        <message>
            <source>shift left</source>
            <extracomment>SHLBtn name</extracomment>
            <translation>nach links schieben</translation>
        </message>
        <message>
            <source>Shifts the bits one place to the left</source>
            <extracomment>SHLBtn description</extracomment>
            <translation>Schiebt die Bits um eine Stelle nach links</translation>
        </message>
        <message>
            <source>shift right</source>
            <extracomment>SHRBtn name</extracomment>
            <translation>nach rechts schieben</translation>
        </message>
        <message>
            <source>Shifts the bits one place to the right</source>
            <extracomment>SHRBtn description</extracomment>
            <translation>Schiebt die Bits um eine Stelle nach rechts</translation>
        </message>
        <message>
            <source>rotate left</source>
            <extracomment>ROLBtn name</extracomment>
            <translation>nach links rotieren</translation>
        </message>
        <message>
            <source>Rotates the bits one place to the left</source>
            <extracomment>ROLBtn description</extracomment>
            <translation>Rotiert die Bits um eine Stelle nach links</translation>
        </message>
        <message>
            <source>rotate right</source>
            <extracomment>RORBtn name</extracomment>
            <translation>nach rechts rotieren</translation>
        </message>
        <message>
            <source>Rotates the bits one place to the right</source>
            <extracomment>RORBtn description</extracomment>
            <translation>Rotiert die Bits um eine Stelle nach rechts</translation>
        </message>
    </context>
    <context>
        <name>QORKITExprEdit</name>
        <message>
            <source>'%s' cannot be evaluated</source>
            <extracomment>rsExpressionNotEvaluated</extracomment>
            <translation>'%s' kann nicht berechnet werden</translation>
        </message>
    </context>
</TS>
