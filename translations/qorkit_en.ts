<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
    <context>
        <name>QORKIT_Base</name>
        <message>
            <source>Division by zero</source>
            <extracomment>rsDivideByZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Invalid equation</source>
            <extracomment>rsInvalidEquation</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square root of a negative number</source>
            <extracomment>rsSqRootNeg</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>M</source>
            <extracomment>rsMemoryHistoryPrefix</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Complex division by zero</source>
            <extracomment>rsCDivideByZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Not defined for this value</source>
            <extracomment>rsNotDefinedForValue</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Invalid date</source>
            <extracomment>rsInvalidDate</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Invalid latitude</source>
            <extracomment>rsInvalidLatitude</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Invalid longitude</source>
            <extracomment>rsInvalidLongitude</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>N</source>
            <extracomment>rsNorthAbbr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>S</source>
            <extracomment>rsSouthAbbr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>E</source>
            <extracomment>rsEastAbbr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>W</source>
            <extracomment>rsWestAbbr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Invalid floating point operation</source>
            <extracomment>rsInvalidOperation</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Floating point overflow</source>
            <extracomment>rsOverflow</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm of zero or a negative number</source>
            <extracomment>rsLogNonPositive</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Argument out of the function's domain</source>
            <extracomment>rsOutOfDomain</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid floating point value</source>
            <extracomment>rsInvalidFloat</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid integer value</source>
            <extracomment>rsInvalidInteger</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid hexadecimal value</source>
            <extracomment>rsInvalidHex</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid binary value</source>
            <extracomment>rsInvalidBinary</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid octal value</source>
            <extracomment>rsInvalidOctal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is not a valid angle</source>
            <extracomment>rsInvalidAngle</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>'%s' is out of the integer range</source>
            <extracomment>rsIntegerOverflow</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_Calc</name>
        <message>
            <source>Error!</source>
            <extracomment>rsErrorMsg</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>- - - - ERROR - - - -</source>
            <extracomment>rsPaperErrLine</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>x ^ y</source>
            <extracomment>rsXpwrYPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>x ^ 1/y</source>
            <extracomment>rsXpwrInvYPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>mod</source>
            <extracomment>rsFPModPaper, rsMODKey, rsMODHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rem</source>
            <extracomment>rsFPRemPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>div</source>
            <extracomment>rsFPDivPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>intdiv</source>
            <extracomment>rsFPIntDivPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>sin</source>
            <extracomment>rsSinPaper, rsSinKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>arcsin</source>
            <extracomment>rsArcsinPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>sinh</source>
            <extracomment>rsSinhPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>arsinh</source>
            <extracomment>rsArsinhPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>cos</source>
            <extracomment>rsCosPaper, rsCosKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>arccos</source>
            <extracomment>rsArccosPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>cosh</source>
            <extracomment>rsCoshPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>arcosh</source>
            <extracomment>rsArcoshPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>tan</source>
            <extracomment>rsTanPaper, rsTanKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>arctan</source>
            <extracomment>rsArctanPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>tanh</source>
            <extracomment>rsTanhPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>artanh</source>
            <extracomment>rsArtanhPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>log</source>
            <extracomment>rsLogPaper, rsLogKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>10^x</source>
            <extracomment>rs10toXPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ln</source>
            <extracomment>rsLnPaper, rsLnKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>e^x</source>
            <extracomment>rsEtoXPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>log2</source>
            <extracomment>rsLog2Paper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>2^x</source>
            <extracomment>rsInvLog2Paper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>sqrt</source>
            <extracomment>rsSqrtPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>x^2</source>
            <extracomment>rsSquarePaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>abs</source>
            <extracomment>rsAbsPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>floor</source>
            <extracomment>rsFloorPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ceiling</source>
            <extracomment>rsCeilingPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>sign</source>
            <extracomment>rsSignPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>gamma</source>
            <extracomment>rsGammaPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ln gamma</source>
            <extracomment>rsLnGammaPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>1/x</source>
            <extracomment>rsInvertPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>round</source>
            <extracomment>rsRoundPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>deg</source>
            <extracomment>rsDegAbbrev</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rad</source>
            <extracomment>rsRadAbbrev</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>gra</source>
            <extracomment>rsGraAbbrev</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>M+</source>
            <extracomment>rsMemAddPaper, rsMAddKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>M-</source>
            <extracomment>rsMemSubPaper, rsMSubtractKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MC</source>
            <extracomment>rsMemClrPaper, rsMCKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MR</source>
            <extracomment>rsMemRecPaper, rsMRKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>- - - - - - - - - - -</source>
            <extracomment>rsPaperLine</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Unknown Function</source>
            <extracomment>rsUnknownFunction</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MOD</source>
            <extracomment>rsMODPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>AND</source>
            <extracomment>rsANDPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>OR</source>
            <extracomment>rsORPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>XOR</source>
            <extracomment>rsXORPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>NAND</source>
            <extracomment>rsNANDPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>NOR</source>
            <extracomment>rsNORPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>XNOR</source>
            <extracomment>rsXNORPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>NOT</source>
            <extracomment>rsNOTPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>NEG</source>
            <extracomment>rsNEGPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>SHL</source>
            <extracomment>rsSHLPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>SHR</source>
            <extracomment>rsSHRPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ROL</source>
            <extracomment>rsROLPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ROR</source>
            <extracomment>rsRORPaper</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bin</source>
            <extracomment>rsComboBin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dec</source>
            <extracomment>rsComboDec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hex</source>
            <extracomment>rsComboHex</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Oct</source>
            <extracomment>rsComboOct</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>8 bits</source>
            <extracomment>rsCombo8Bits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>16 bits</source>
            <extracomment>rsCombo16Bits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>32 bits</source>
            <extracomment>rsCombo32Bits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>64 bits</source>
            <extracomment>rsCombo64Bits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>No Spacing</source>
            <extracomment>rsSpacingNone</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Byte Spacing</source>
            <extracomment>rsSpacingByte</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Word Spacing</source>
            <extracomment>rsSpacingWord</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>DWord Spacing</source>
            <extracomment>rsSpacingDWord</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Clear</source>
            <extracomment>rsChangeClear, rsCHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Truncate</source>
            <extracomment>rsChangeTruncate</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Extend</source>
            <extracomment>rsChangeExtend</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calculator</source>
            <extracomment>rsCalculator</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>inv</source>
            <extracomment>rsInvAbbrev</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hyp</source>
            <extracomment>rsHypAbbrev</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>lg2</source>
            <extracomment>rsLg2Key</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>exp</source>
            <extracomment>rsExpKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>AC</source>
            <extracomment>rsACKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>C</source>
            <extracomment>rsCKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cl</source>
            <extracomment>rsClKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>and</source>
            <extracomment>rsANDKey, rsANDHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>or</source>
            <extracomment>rsORKey, rsORHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>xor</source>
            <extracomment>rsXORKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>nand</source>
            <extracomment>rsNANDKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>nor</source>
            <extracomment>rsNORKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>xnor</source>
            <extracomment>rsXNORKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>not</source>
            <extracomment>rsNOTKey, rsNOTHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>neg</source>
            <extracomment>rsNEGKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shl</source>
            <extracomment>rsSHLKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shr</source>
            <extracomment>rsSHRKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rol</source>
            <extracomment>rsROLKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ror</source>
            <extracomment>rsRORKey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Change Sign</source>
            <extracomment>rsChangeSignHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Add</source>
            <extracomment>rsAddHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Subtract</source>
            <extracomment>rsSubtractHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Multiply</source>
            <extracomment>rsMultiplyHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Divide</source>
            <extracomment>rsDivideHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BackSpace</source>
            <extracomment>rsBackSpaceHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>All Clear</source>
            <extracomment>rsACHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Clear Memory</source>
            <extracomment>rsMCHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Add To Memory</source>
            <extracomment>rsMAddHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Subtract From Memory</source>
            <extracomment>rsMSubtractHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Memory Recall</source>
            <extracomment>rsMRHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Raised to the Power of</source>
            <extracomment>rsPowerHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pi (Constant)</source>
            <extracomment>rsPiHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Natural Constant</source>
            <extracomment>rsEHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Squares the Value</source>
            <extracomment>rsSquareHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Roots the Value</source>
            <extracomment>rsSqRootHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inverts the Value</source>
            <extracomment>rsInvertHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm to Base 10</source>
            <extracomment>rsLogHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Natural Logarithm</source>
            <extracomment>rsLnHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm to Base 2</source>
            <extracomment>rsLg2Hint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sine of Value</source>
            <extracomment>rsSinHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cosine of Value</source>
            <extracomment>rsCosHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tangent of Value</source>
            <extracomment>rsTanHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inverse Operation</source>
            <extracomment>rsInvHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hyperbolic Function</source>
            <extracomment>rsHypHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>x Percent of y</source>
            <extracomment>rsPercentHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians or Degrees</source>
            <extracomment>rsRadHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>exclusive or</source>
            <extracomment>rsXORHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>not and</source>
            <extracomment>rsNANDHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>not or</source>
            <extracomment>rsNORHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>not exclusive or</source>
            <extracomment>rsXNORHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>negate</source>
            <extracomment>rsNEGHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shift left</source>
            <extracomment>rsSHLHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shift right</source>
            <extracomment>rsSHRHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rotate left</source>
            <extracomment>rsROLHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rotate right</source>
            <extracomment>rsRORHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>choose desired base</source>
            <extracomment>rsBaseHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>choose desired bit length</source>
            <extracomment>rsBitsHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exit and Transfer Result</source>
            <extracomment>rsExitHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exit and Do Not Transfer Result</source>
            <extracomment>rsCancelHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Copy Value to ClipBoard</source>
            <extracomment>rsCopyHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paste Value from Clipboard</source>
            <extracomment>rsPasteHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Value</source>
            <extracomment>rsValueHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Memory</source>
            <extracomment>rsMemoryHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decimal Places</source>
            <extracomment>rsDecimalsHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The currency symbol can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat1</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The currency format can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The negative currency format can only be changed when the edit uses its own currency format</source>
            <extracomment>rsCurrencyFormat3</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cannot show more than </source>
            <extracomment>rsCannot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source> decimal places</source>
            <extracomment>rsDecimalPlaces</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_UC</name>
        <message>
            <source>Temperature</source>
            <extracomment>rsName_ectTemperature</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Distance (Length)</source>
            <extracomment>rsName_ectDistance</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mass</source>
            <extracomment>rsName_ectMass</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Area</source>
            <extracomment>rsName_ectArea</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Volume</source>
            <extracomment>rsName_ectVolume</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pressure</source>
            <extracomment>rsName_ectPressure</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Velocity</source>
            <extracomment>rsName_ectVelocity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acceleration</source>
            <extracomment>rsName_ectAcceleration</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Force</source>
            <extracomment>rsName_ectForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Energy</source>
            <extracomment>rsName_ectEnergy</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Power</source>
            <extracomment>rsName_ectPowerConv</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fuel Consumption</source>
            <extracomment>rsName_ectFuelConsumption</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Flow (Liquid)</source>
            <extracomment>rsName_ectFlow</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Flow (Mass)</source>
            <extracomment>rsName_ectFlowMass</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Torque</source>
            <extracomment>rsName_ectTorque</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radioactivity</source>
            <extracomment>rsName_ectRadioactivity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Angle</source>
            <extracomment>rsName_ectAngles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Illumination (Brightness)</source>
            <extracomment>rsName_ectIllumination</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luminous Intensity</source>
            <extracomment>rsName_ectLuminous</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luminance</source>
            <extracomment>rsName_ectLuminance</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luminous Flux</source>
            <extracomment>rsName_ectLumFlux</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Angular Velocity</source>
            <extracomment>rsName_ectAngVel</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Density</source>
            <extracomment>rsName_ectDensity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Time</source>
            <extracomment>rsName_ectTime</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Computer Storage</source>
            <extracomment>rsName_ectComputer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Data Rate</source>
            <extracomment>rsName_ectDataRate</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Angular Acceleration</source>
            <extracomment>rsName_ectAngAccel</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Viscosity (Dynamic)</source>
            <extracomment>rsName_ectVisDyn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Viscosity (Kinematic)</source>
            <extracomment>rsName_ectVisKin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electric Charge</source>
            <extracomment>rsName_ectElCharge</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electric Current</source>
            <extracomment>rsName_ectCurrent</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quantity</source>
            <extracomment>rsName_ectQuantity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Magnetic Flux</source>
            <extracomment>rsName_ectMagneticFlux</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Magnetic Flux Density</source>
            <extracomment>rsName_ectMagneticFluxDensity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radiation Absorption</source>
            <extracomment>rsName_ectRadiationAbsorption</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radiation Dose</source>
            <extracomment>rsName_ectRadiationDose</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Thermal Conductivity</source>
            <extracomment>rsName_ectThermalConductivity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Magnetic Field Strength</source>
            <extracomment>rsName_ectMagneticFieldStrength</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Units</source>
            <extracomment>rsName_eqtUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pairs</source>
            <extracomment>rsName_eqtPairs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Couples</source>
            <extracomment>rsName_eqtCouples</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dozens</source>
            <extracomment>rsName_eqtDozens</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dozens (Baker's)</source>
            <extracomment>rsName_eqtDozensBakers</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dozens (Metric)</source>
            <extracomment>rsName_eqtDozensMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Scores</source>
            <extracomment>rsName_eqtScores</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gross</source>
            <extracomment>rsName_eqtGross</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Great Gross</source>
            <extracomment>rsName_eqtGreatGross</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Braces</source>
            <extracomment>rsName_eqtBraces</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Doubles</source>
            <extracomment>rsName_eqtDoubles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Triples</source>
            <extracomment>rsName_eqtTriples</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Trebles</source>
            <extracomment>rsName_eqtTrebles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries</source>
            <extracomment>rsName_eqtCenturies</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Half Centuries</source>
            <extracomment>rsName_eqtHalfCenturies</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Small Gross</source>
            <extracomment>rsName_eqtSmallGross</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Great Hundreds</source>
            <extracomment>rsName_eqtGreatHundred</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hundreds</source>
            <extracomment>rsName_eqtHundreds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Thousands</source>
            <extracomment>rsName_eqtThousands</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millions</source>
            <extracomment>rsName_eqtMillions</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Billions</source>
            <extracomment>rsName_eqtBillions</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Trillions</source>
            <extracomment>rsName_eqtTrillions</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quadrillions</source>
            <extracomment>rsName_eqtQuadrillions</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Myriads</source>
            <extracomment>rsName_eqtMyriads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lakh</source>
            <extracomment>rsName_eqtLakh</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Crore</source>
            <extracomment>rsName_eqtCrore</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Halves</source>
            <extracomment>rsName_eqtHalves</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Thirds</source>
            <extracomment>rsName_eqtThirds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarters</source>
            <extracomment>rsName_eqtQuarters, rsName_emtQuarters</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bytes</source>
            <extracomment>rsName_ectBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Octets</source>
            <extracomment>rsName_ectOctets</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits</source>
            <extracomment>rsName_ectBits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nibbles</source>
            <extracomment>rsName_ectNibbles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Blocks</source>
            <extracomment>rsName_ectBlocks</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobytes (2)</source>
            <extracomment>rsName_ectKiloBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabytes (2)</source>
            <extracomment>rsName_ectMegaBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabytes (2)</source>
            <extracomment>rsName_ectGigaBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabytes (2)</source>
            <extracomment>rsName_ectTeraBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Petabytes (2)</source>
            <extracomment>rsName_ectPetaBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exabytes (2)</source>
            <extracomment>rsName_ectExaBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kibibytes</source>
            <extracomment>rsName_ectKibiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mebibytes</source>
            <extracomment>rsName_ectMebiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gibibytes</source>
            <extracomment>rsName_ectGibiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tebibytes</source>
            <extracomment>rsName_ectTebiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pebibytes</source>
            <extracomment>rsName_ectPebiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exbibytes</source>
            <extracomment>rsName_ectExbiBytes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobytes (10)</source>
            <extracomment>rsName_ectKiloBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabytes (10)</source>
            <extracomment>rsName_ectMegaBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabytes (10)</source>
            <extracomment>rsName_ectGigaBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabytes (10)</source>
            <extracomment>rsName_ectTeraBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Petabytes (10)</source>
            <extracomment>rsName_ectPetaBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exabytes (10)</source>
            <extracomment>rsName_ectExaBytes10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobits (2)</source>
            <extracomment>rsName_ectKilobits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabits (2)</source>
            <extracomment>rsName_ectMegabits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabits (2)</source>
            <extracomment>rsName_ectGigabits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabits (2)</source>
            <extracomment>rsName_ectTerabits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Petabits (2)</source>
            <extracomment>rsName_ectPetabits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exabits (2)</source>
            <extracomment>rsName_ectExabits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kibibits</source>
            <extracomment>rsName_ectKibibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mebibits</source>
            <extracomment>rsName_ectMebibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gibibits</source>
            <extracomment>rsName_ectGibibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tebibits</source>
            <extracomment>rsName_ectTebibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pebibits</source>
            <extracomment>rsName_ectPebibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exbibits</source>
            <extracomment>rsName_ectExbibits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobits (10)</source>
            <extracomment>rsName_ectKilobits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabits (10)</source>
            <extracomment>rsName_ectMegabits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabits (10)</source>
            <extracomment>rsName_ectGigabits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabits (10)</source>
            <extracomment>rsName_ectTerabits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Petabits (10)</source>
            <extracomment>rsName_ectPetabits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Exabits (10)</source>
            <extracomment>rsName_ectExabits10</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Minutes (Audio CD)</source>
            <extracomment>rsName_ectAudioMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits per Second</source>
            <extracomment>rsName_edrBitsPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobits per Second</source>
            <extracomment>rsName_edrKilobitsPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabits per Second</source>
            <extracomment>rsName_edrMegabitsPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabits per Second</source>
            <extracomment>rsName_edrGigabitsPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabits per Second</source>
            <extracomment>rsName_edrTerabitsPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bytes per Second</source>
            <extracomment>rsName_edrBytesPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobytes per Second</source>
            <extracomment>rsName_edrKilobytesPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabytes per Second</source>
            <extracomment>rsName_edrMegabytesPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabytes per Second</source>
            <extracomment>rsName_edrGigabytesPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabytes per Second</source>
            <extracomment>rsName_edrTerabytesPS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Baud</source>
            <extracomment>rsName_edrBaud</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits per Minute</source>
            <extracomment>rsName_edrBitsPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobits per Minute</source>
            <extracomment>rsName_edrKilobitsPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabits per Minute</source>
            <extracomment>rsName_edrMegabitsPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabits per Minute</source>
            <extracomment>rsName_edrGigabitsPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabits per Minute</source>
            <extracomment>rsName_edrTerabitsPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bytes per Minute</source>
            <extracomment>rsName_edrBytesPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobytes per Minute</source>
            <extracomment>rsName_edrKilobytesPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabytes per Minute</source>
            <extracomment>rsName_edrMegabytesPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabytes per Minute</source>
            <extracomment>rsName_edrGigabytesPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabytes per Minute</source>
            <extracomment>rsName_edrTerabytesPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits per Hour</source>
            <extracomment>rsName_edrBitsPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobits per Hour</source>
            <extracomment>rsName_edrKilobitsPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabits per Hour</source>
            <extracomment>rsName_edrMegabitsPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabits per Hour</source>
            <extracomment>rsName_edrGigabitsPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabits per Hour</source>
            <extracomment>rsName_edrTerabitsPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bytes per Hour</source>
            <extracomment>rsName_edrBytesPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobytes per Hour</source>
            <extracomment>rsName_edrKilobytesPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabytes per Hour</source>
            <extracomment>rsName_edrMegabytesPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabytes per Hour</source>
            <extracomment>rsName_edrGigabytesPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terabytes per Hour</source>
            <extracomment>rsName_edrTerabytesPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians</source>
            <extracomment>rsName_eatRadians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliradians</source>
            <extracomment>rsName_eatMilliradians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microradians</source>
            <extracomment>rsName_eatMicroradians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanoradians</source>
            <extracomment>rsName_eatNanoradians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees</source>
            <extracomment>rsName_eatDegrees</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grads</source>
            <extracomment>rsName_eatGrads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Minutes</source>
            <extracomment>rsName_eatMinutes, rsName_ettMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Seconds</source>
            <extracomment>rsName_eatSeconds, rsName_ettSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millidegrees</source>
            <extracomment>rsName_eatMillidegrees</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microdegrees</source>
            <extracomment>rsName_eatMicrodegrees</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Binary Degrees</source>
            <extracomment>rsName_eatBinaryDegrees</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Binary Radians (Brads)</source>
            <extracomment>rsName_eatBinaryRadians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Points</source>
            <extracomment>rsName_eatPointsAngle, rsName_edtPoints, rsName_emtPoints</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grade (%)</source>
            <extracomment>rsName_eatGrade</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grade (per mil)</source>
            <extracomment>rsName_eatGradePerMil</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rise Ratio</source>
            <extracomment>rsName_eatRiseRatio</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Circles</source>
            <extracomment>rsName_eatCircles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Semicircles</source>
            <extracomment>rsName_eatSemicircles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quadrants</source>
            <extracomment>rsName_eatQuadrants</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Angular Mils</source>
            <extracomment>rsName_eatAngularMils</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days</source>
            <extracomment>rsName_ettDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hours</source>
            <extracomment>rsName_ettHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Weeks</source>
            <extracomment>rsName_ettWeeks</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fortnights</source>
            <extracomment>rsName_ettFortnights</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Months (Synodic)</source>
            <extracomment>rsName_ettMonths</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Months (28 days)</source>
            <extracomment>rsName_ettMonths28</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Months (30 days)</source>
            <extracomment>rsName_ettMonths30</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal)</source>
            <extracomment>rsName_ettSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Months (Sidereal)</source>
            <extracomment>rsName_ettSiderealMonths</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Tropical)</source>
            <extracomment>rsName_ettYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (360 days)</source>
            <extracomment>rsName_ettYears360</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (365 days)</source>
            <extracomment>rsName_ettYears365</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Gregorian)</source>
            <extracomment>rsName_ettYearsGregorian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Julian)</source>
            <extracomment>rsName_ettYearsJulian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal)</source>
            <extracomment>rsName_ettYearsSidereal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (Tropical)</source>
            <extracomment>rsName_ettDecades</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (3600 days)</source>
            <extracomment>rsName_ettDecades360</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (3650 days)</source>
            <extracomment>rsName_ettDecades365</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (Gregorian)</source>
            <extracomment>rsName_ettDecadesGregorian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (Julian)</source>
            <extracomment>rsName_ettDecadesJulian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (Tropical)</source>
            <extracomment>rsName_ettCenturies</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (36000 days)</source>
            <extracomment>rsName_ettCenturies360</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (36500 days)</source>
            <extracomment>rsName_ettCenturies365</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (Gregorian)</source>
            <extracomment>rsName_ettCenturiesGregorian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (Julian)</source>
            <extracomment>rsName_ettCenturiesJulian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microseconds</source>
            <extracomment>rsName_ettMicroseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliseconds</source>
            <extracomment>rsName_ettMilliseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kiloseconds</source>
            <extracomment>rsName_ettKiloseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megaseconds</source>
            <extracomment>rsName_ettMegaseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigaseconds</source>
            <extracomment>rsName_ettGigaseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Mars)</source>
            <extracomment>rsName_ettMarsYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Mars)(Sols)</source>
            <extracomment>rsName_ettMarsSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Mars)</source>
            <extracomment>rsName_ettMarsSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Venus)</source>
            <extracomment>rsName_ettVenusYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Venus)</source>
            <extracomment>rsName_ettVenusSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Venus)</source>
            <extracomment>rsName_ettVenusSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanoseconds</source>
            <extracomment>rsName_ettNanoseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picoseconds</source>
            <extracomment>rsName_ettPicoseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Femtoesconds</source>
            <extracomment>rsName_ettFemtoseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Luna)</source>
            <extracomment>rsName_ettLunaDaysSolar, rsName_ettLunaDaysSidereal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Mercury)</source>
            <extracomment>rsName_ettMercuryYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Mercury)</source>
            <extracomment>rsName_ettMercurySolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Mercury)</source>
            <extracomment>rsName_ettMercurySiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Jupiter)</source>
            <extracomment>rsName_ettJupiterYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Jupiter)</source>
            <extracomment>rsName_ettJupiterSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Jupiter)</source>
            <extracomment>rsName_ettJupiterSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Saturn)</source>
            <extracomment>rsName_ettSaturnYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Saturn)</source>
            <extracomment>rsName_ettSaturnSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Saturn)</source>
            <extracomment>rsName_ettSaturnSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Uranus)</source>
            <extracomment>rsName_ettUranusYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Uranus)</source>
            <extracomment>rsName_ettUranusSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Uranus)</source>
            <extracomment>rsName_ettUranusSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Sidereal - Neptune)</source>
            <extracomment>rsName_ettNeptuneYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Solar - Neptune)</source>
            <extracomment>rsName_ettNeptuneSolarDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Neptune)</source>
            <extracomment>rsName_ettNeptuneSiderealDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (364 days)</source>
            <extracomment>rsName_ettYears364</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decades (3640 days)</source>
            <extracomment>rsName_ettDecades364</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centuries (36400 days)</source>
            <extracomment>rsName_ettCenturies364</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Months (Lunar)</source>
            <extracomment>rsName_ettMonthsLunar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lunations</source>
            <extracomment>rsName_ettLunations</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Years (Lunar)</source>
            <extracomment>rsName_ettYearsLunar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source></source>
            <extracomment>rsName_ettSunDaysSidereal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kelvin</source>
            <extracomment>rsName_ettKelvin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fahrenheit</source>
            <extracomment>rsName_ettFahrenheit</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Celsius</source>
            <extracomment>rsName_ettCelsius</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Réaumur</source>
            <extracomment>rsName_ettReaumur</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rankine</source>
            <extracomment>rsName_ettRankine</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rømer</source>
            <extracomment>rsName_ettRomer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Delisle</source>
            <extracomment>rsName_ettDelisle</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newton</source>
            <extracomment>rsName_ettNewton</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres</source>
            <extracomment>rsName_edtMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres</source>
            <extracomment>rsName_edtCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres</source>
            <extracomment>rsName_edtMillimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microns</source>
            <extracomment>rsName_edtMicrons, rsName_eptMicronsPressure</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Micrometres</source>
            <extracomment>rsName_edtMicrometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanometres</source>
            <extracomment>rsName_edtNanometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Angstroms</source>
            <extracomment>rsName_edtAngstroms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres</source>
            <extracomment>rsName_edtKilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet</source>
            <extracomment>rsName_edtFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mils</source>
            <extracomment>rsName_edtMils</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches</source>
            <extracomment>rsName_edtInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Yards</source>
            <extracomment>rsName_edtYards</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles</source>
            <extracomment>rsName_edtMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fathoms</source>
            <extracomment>rsName_edtFathoms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Shackles (12.5 Fathoms)</source>
            <extracomment>rsName_edtShackles12</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Shackles (15 Fathoms)</source>
            <extracomment>rsName_edtShackles15</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nautical Miles (UK)</source>
            <extracomment>rsName_edtNauticalMilesUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nautical Miles (US)</source>
            <extracomment>rsName_edtNauticalMilesUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nautical Miles (International)</source>
            <extracomment>rsName_edtNauticalMilesInt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nautical Miles (Telegraphic)</source>
            <extracomment>rsName_edtNauticalMilesTelegraph</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Geographical Miles</source>
            <extracomment>rsName_edtGeographicalMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Admiralty Miles</source>
            <extracomment>rsName_edtAdmiraltyMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Roman Miles</source>
            <extracomment>rsName_edtRomanMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Roman Feet</source>
            <extracomment>rsName_edtRomanFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Unciae (Roman Inches)</source>
            <extracomment>rsName_edtUnciae</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Scottish Miles</source>
            <extracomment>rsName_edtScottishMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Irish Miles</source>
            <extracomment>rsName_edtIrishMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Chains</source>
            <extracomment>rsName_edtChains</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Chains (Engineer)</source>
            <extracomment>rsName_edtEngChains</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rods</source>
            <extracomment>rsName_edtRods</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Links</source>
            <extracomment>rsName_edtLinks</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Links (Engineer)</source>
            <extracomment>rsName_edtEngLinks</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hands</source>
            <extracomment>rsName_edtHands</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet (US Survey)</source>
            <extracomment>rsName_edtFeetUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches (US Survey)</source>
            <extracomment>rsName_edtInchesUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Thous</source>
            <extracomment>rsName_edtThous</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Poles</source>
            <extracomment>rsName_edtPoles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Perches</source>
            <extracomment>rsName_edtPerches, rsName_eatPerches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Furlongs</source>
            <extracomment>rsName_edtFurlongs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Leagues (UK Land)</source>
            <extracomment>rsName_edtLeaguesUKLand</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Leagues (UK Sea)</source>
            <extracomment>rsName_edtLeaguesUKSea</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Leagues (US)</source>
            <extracomment>rsName_edtLeaguesUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Astronomical Units</source>
            <extracomment>rsName_edtAstronomicalUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Years</source>
            <extracomment>rsName_edtLightYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Years (365 Days)</source>
            <extracomment>rsName_edtLightYears365</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Parsecs</source>
            <extracomment>rsName_edtParsecs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picas</source>
            <extracomment>rsName_edtPicas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Seconds</source>
            <extracomment>rsName_edtLightSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Minutes</source>
            <extracomment>rsName_edtLightMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Hours</source>
            <extracomment>rsName_edtLightHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Days</source>
            <extracomment>rsName_edtLightDays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pouces</source>
            <extracomment>rsName_edtPouces</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pieds de roi</source>
            <extracomment>rsName_edtPieds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barleycorns</source>
            <extracomment>rsName_edtBarleycorn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paris Points</source>
            <extracomment>rsName_edtParisPoint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubits (Common)</source>
            <extracomment>rsName_edtCubitsCommon</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubits (Roman)</source>
            <extracomment>rsName_edtCubitsRoman</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubits (Greek)</source>
            <extracomment>rsName_edtCubitsGreek</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubits (Short)</source>
            <extracomment>rsName_edtCubitsShort</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Spans</source>
            <extracomment>rsName_edtSpans</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Smoots</source>
            <extracomment>rsName_edtSmoots</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Tenths of)</source>
            <extracomment>rsName_edtInchTenth</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Sixteenths of)</source>
            <extracomment>rsName_edtInchSixteenth</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Thirty-Seconds of)</source>
            <extracomment>rsName_edtInchThirtySecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Sixty-Fourths of)</source>
            <extracomment>rsName_edtInchSixtyFourth</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decimetres</source>
            <extracomment>rsName_edtDecimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decametres</source>
            <extracomment>rsName_edtDecametres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microinches</source>
            <extracomment>rsName_edtMicroinches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picometres</source>
            <extracomment>rsName_edtPicometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Femtometres</source>
            <extracomment>rsName_edtFemtometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fermi</source>
            <extracomment>rsName_edtFermi</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bohr Radii</source>
            <extracomment>rsName_edtBohrRadius</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Milliseconds</source>
            <extracomment>rsName_edtLightMilliseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Light Microseconds</source>
            <extracomment>rsName_edtLightMicroseconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles (US Survey)</source>
            <extracomment>rsName_edtMilesUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megaparsecs</source>
            <extracomment>rsName_edtMegaparsecs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigaparsecs</source>
            <extracomment>rsName_edtGigaparsecs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Field lengths (CAN)</source>
            <extracomment>rsName_edtFootballLensCan</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Field Widths (CAN)</source>
            <extracomment>rsName_edtFootballWidthsCan</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cricket Pitches</source>
            <extracomment>rsName_edtCricketPitches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Radii</source>
            <extracomment>rsName_edtEarthRadii</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Empire State Buildings</source>
            <extracomment>rsName_edtEmpireStateBuildings</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Golf Balls</source>
            <extracomment>rsName_edtGolfBallDiameters, rsName_emtGolfBallMasses, rsName_evtGolfBalls</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Olympic Soccer Field Lengths</source>
            <extracomment>rsName_edtOlympicSoccerLens</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Olympic Soccer Field Widths</source>
            <extracomment>rsName_edtOlympicSoccerWidths</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Olympic Pools</source>
            <extracomment>rsName_edtOlympicPools, rsName_evtOlympicPools</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ping Pong Balls</source>
            <extracomment>rsName_edtPingPongBallDiameters, rsName_evtPingPongBalls</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Field Lengths (US)</source>
            <extracomment>rsName_edtFootballLensUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Field Widths (US)</source>
            <extracomment>rsName_edtFootbalWidthsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Planck Lengths</source>
            <extracomment>rsName_edtPlanckLengths</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Radii (Equatorial)</source>
            <extracomment>rsName_edtEarthRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Radii (Polar)</source>
            <extracomment>rsName_edtEarthRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luna Radii (Equatorial)</source>
            <extracomment>rsName_edtLunaRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luna Radii (Polar)</source>
            <extracomment>rsName_edtLunaRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mars Radii (Equatorial)</source>
            <extracomment>rsName_edtMarsRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mars Radii (Polar)</source>
            <extracomment>rsName_edtMarsRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Mars</source>
            <extracomment>rsName_edtSunToMars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Venus Radii (Equatorial)</source>
            <extracomment>rsName_edtVenusRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Venus Radii (Polar)</source>
            <extracomment>rsName_edtVenusRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Venus</source>
            <extracomment>rsName_edtSunToVenus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lí (1930)</source>
            <extracomment>rsName_edtLiDist1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Chi (1930)</source>
            <extracomment>rsName_edtChiDist1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cùn (1930)</source>
            <extracomment>rsName_edtCunDist1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mercury Radii (Equatorial)</source>
            <extracomment>rsName_edtMercuryRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mercury Radii (Polar)</source>
            <extracomment>rsName_edtMercuryRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Mercury</source>
            <extracomment>rsName_edtSunToMercury</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jupiter Radii (Equatorial)</source>
            <extracomment>rsName_edtJupiterRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jupiter Radii (Polar)</source>
            <extracomment>rsName_edtJupiterRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Jupiter</source>
            <extracomment>rsName_edtSunToJupiter</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Saturn Radii (Equatorial)</source>
            <extracomment>rsName_edtSaturnRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Saturn Radii (Polar)</source>
            <extracomment>rsName_edtSaturnRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Saturn</source>
            <extracomment>rsName_edtSunToSaturn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Uranus Radii (Equatorial)</source>
            <extracomment>rsName_edtUranusRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Uranus Radii (Polar)</source>
            <extracomment>rsName_edtUranusRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Uranus</source>
            <extracomment>rsName_edtSunToUranus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neptune Radii (Equatorial)</source>
            <extracomment>rsName_edtNeptuneRadiiEquatorial</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neptune Radii (Polar)</source>
            <extracomment>rsName_edtNeptuneRadiiPolar</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sun to Neptune</source>
            <extracomment>rsName_edtSunToNeptune</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Eighths of)</source>
            <extracomment>rsName_edtInchEighth</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inch (Thousandths of)</source>
            <extracomment>rsName_edtInchThousandth</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Solar Radii</source>
            <extracomment>rsName_edtSolarRadii</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms</source>
            <extracomment>rsName_emtKilograms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams</source>
            <extracomment>rsName_emtGrams</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milligrams</source>
            <extracomment>rsName_emtMilligrams</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tonnes</source>
            <extracomment>rsName_emtTonnes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds</source>
            <extracomment>rsName_emtPounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces</source>
            <extracomment>rsName_emtOunces</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Stones</source>
            <extracomment>rsName_emtStones</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarters (Short)</source>
            <extracomment>rsName_emtShortQuarters</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Long)</source>
            <extracomment>rsName_emtTons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Short)</source>
            <extracomment>rsName_emtShortTons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hundredweights</source>
            <extracomment>rsName_emtHundredWeights</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hundredweights (Short)</source>
            <extracomment>rsName_emtShortHundredWeights</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Drams</source>
            <extracomment>rsName_emtDrams</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grains</source>
            <extracomment>rsName_emtGrains</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Scruples</source>
            <extracomment>rsName_emtScruples</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grains (Metric)</source>
            <extracomment>rsName_emtMetricGrains</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Carats</source>
            <extracomment>rsName_emtCarats</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds (Troy)</source>
            <extracomment>rsName_emtTroyPounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces (Troy)</source>
            <extracomment>rsName_emtTroyOunces</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Roman Ounces</source>
            <extracomment>rsName_emtRomanOunces</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Roman Pounds</source>
            <extracomment>rsName_emtRomanPounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pennyweights</source>
            <extracomment>rsName_emtPennyweights</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Slugs</source>
            <extracomment>rsName_emtSlugs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Zentners</source>
            <extracomment>rsName_emtZentners</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pfund</source>
            <extracomment>rsName_emtPfund</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Livre</source>
            <extracomment>rsName_emtLivre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Micrograms</source>
            <extracomment>rsName_emtMicrograms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanograms</source>
            <extracomment>rsName_emtNanograms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picograms</source>
            <extracomment>rsName_emtPicograms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilopounds</source>
            <extracomment>rsName_emtKilopounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kips</source>
            <extracomment>rsName_emtKips</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tolas</source>
            <extracomment>rsName_emtTolas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Taels (Chinese)</source>
            <extracomment>rsName_emtTaelsChina</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Taels (Japanese)</source>
            <extracomment>rsName_emtTaelsJap</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Momme</source>
            <extracomment>rsName_emtMomme</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Berkovets</source>
            <extracomment>rsName_emtBerkovets</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pood</source>
            <extracomment>rsName_emtPood</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Funt</source>
            <extracomment>rsName_emtFunt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lot (Russian)</source>
            <extracomment>rsName_emtLot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Zolotnik</source>
            <extracomment>rsName_emtZolotnik</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dolya</source>
            <extracomment>rsName_emtDolya</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quintals</source>
            <extracomment>rsName_emtQuintals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quintals (Metric)</source>
            <extracomment>rsName_emtQuintalsMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centners</source>
            <extracomment>rsName_emtCentners</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centners (Metric)</source>
            <extracomment>rsName_emtCentnersMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centners (Short Metric)</source>
            <extracomment>rsName_emtCentnersShortMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Libras (Roman)</source>
            <extracomment>rsName_emtLibras</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Libras (Metric)</source>
            <extracomment>rsName_emtLibrasMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilotonnes</source>
            <extracomment>rsName_emtKilotonnes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megatonnes</source>
            <extracomment>rsName_emtMegatonnes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigatonnes</source>
            <extracomment>rsName_emtGigatonnes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Femtograms</source>
            <extracomment>rsName_emtFemtograms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Masses</source>
            <extracomment>rsName_emtEarthMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ping Pong Ball</source>
            <extracomment>rsName_emtPingPongBallMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Proton Mass Units</source>
            <extracomment>rsName_emtProtonMassUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electron Mass Units</source>
            <extracomment>rsName_emtElectronMassUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neutron Mass Units</source>
            <extracomment>rsName_emtNeutronMassUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Atomic Mass Units</source>
            <extracomment>rsName_emtAtomicMassUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Planck Masses</source>
            <extracomment>rsName_emtPlanckMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luna Masses</source>
            <extracomment>rsName_emtLunaMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mars Masses</source>
            <extracomment>rsName_emtMarsMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Venus Masses</source>
            <extracomment>rsName_emtVenusMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dàn (1930)</source>
            <extracomment>rsName_emtDanMass1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jin (1930)</source>
            <extracomment>rsName_emtJinMass1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Liang (1930)</source>
            <extracomment>rsName_emtLiangMass1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mercury Masses</source>
            <extracomment>rsName_emtMercuryMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jupiter Masses</source>
            <extracomment>rsName_emtJupiterMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Saturn Masses</source>
            <extracomment>rsName_emtSaturnMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Uranus Masses</source>
            <extracomment>rsName_emtUranusMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neptune Masses</source>
            <extracomment>rsName_emtNeptuneMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces, Metric (25g)</source>
            <extracomment>rsName_emtOuncesMetric25</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces, Metric (30g)</source>
            <extracomment>rsName_emtOuncesMetric30</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Solar Masses</source>
            <extracomment>rsName_emtSolarMasses</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Metres</source>
            <extracomment>rsName_evtCubicMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres</source>
            <extracomment>rsName_evtLitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilitres</source>
            <extracomment>rsName_evtMillilitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolitres</source>
            <extracomment>rsName_evtKilolitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decilitres</source>
            <extracomment>rsName_evtDeciLitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centilitres</source>
            <extracomment>rsName_evtCentilitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hectolitres</source>
            <extracomment>rsName_evtHectolitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microlitres</source>
            <extracomment>rsName_evtMicrolitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pints (UK)</source>
            <extracomment>rsName_evtPintsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pints (US)</source>
            <extracomment>rsName_evtPintsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarts (UK)</source>
            <extracomment>rsName_evtQuartsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarts (US)</source>
            <extracomment>rsName_evtQuartsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK)</source>
            <extracomment>rsName_evtGallonsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US)</source>
            <extracomment>rsName_evtGallonsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gills (UK)</source>
            <extracomment>rsName_evtGillsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gills (US)</source>
            <extracomment>rsName_evtGillsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (UK)</source>
            <extracomment>rsName_evtFluidOuncesUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (US)</source>
            <extracomment>rsName_evtFluidOuncesUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Drams (UK)</source>
            <extracomment>rsName_evtFluidDramsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Drams (US)</source>
            <extracomment>rsName_evtFluidDramsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Teaspoons (US)</source>
            <extracomment>rsName_evtTeaspoonUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Teaspoons (UK)</source>
            <extracomment>rsName_evtTeaspoonUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Teaspoons (Metric)</source>
            <extracomment>rsName_evtTeaspoonMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dessertspoons (US)</source>
            <extracomment>rsName_evtDessertspoonUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dessertspoons (UK)</source>
            <extracomment>rsName_evtDessertspoonUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dessertspoons (Metric)</source>
            <extracomment>rsName_evtDessertspoonMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tablespoons (US)</source>
            <extracomment>rsName_evtTablespoonUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tablespoons (UK)</source>
            <extracomment>rsName_evtTablespoonUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tablespoons (Metric Australia)</source>
            <extracomment>rsName_evtTablespoonMetricAus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tablespoons (Metric Other)</source>
            <extracomment>rsName_evtTablespoonMetricOther</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Centimetres</source>
            <extracomment>rsName_evtCubicCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Millimetres</source>
            <extracomment>rsName_evtCubicMillimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Decimetres</source>
            <extracomment>rsName_evtCubicDecimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pints (UK Dry)</source>
            <extracomment>rsName_evtPintsUKDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pints (US Dry)</source>
            <extracomment>rsName_evtPintsUSDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarts (UK Dry)</source>
            <extracomment>rsName_evtQuartsUKDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Quarts (US Dry)</source>
            <extracomment>rsName_evtQuartsUSDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK Dry)</source>
            <extracomment>rsName_evtGallonsUKdry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US Dry)</source>
            <extracomment>rsName_evtGallonsUSDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pecks (UK)</source>
            <extracomment>rsName_evtPecksUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pecks (US)</source>
            <extracomment>rsName_evtPecksUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bushels (UK)</source>
            <extracomment>rsName_evtBushellsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bushels (US)</source>
            <extracomment>rsName_evtBushellsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (Oil)</source>
            <extracomment>rsName_evtBarrelsOil</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (Dry)</source>
            <extracomment>rsName_evtBarrelsDry</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (Liquid)</source>
            <extracomment>rsName_evtBarrelsLiquid</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Inches</source>
            <extracomment>rsName_evtCubicInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Fathoms</source>
            <extracomment>rsName_evtCubicFathoms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Feet</source>
            <extracomment>rsName_evtCubicFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Yards</source>
            <extracomment>rsName_evtCubicYards</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cups (Metric)</source>
            <extracomment>rsName_evtCupsMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cups (US)</source>
            <extracomment>rsName_evtCupsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MegaGallons (UK)</source>
            <extracomment>rsName_evtMegaGallonsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megagallons (US)</source>
            <extracomment>rsName_evtMegaGallonsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acre-Feet</source>
            <extracomment>rsName_evtAcreFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acre-Inches</source>
            <extracomment>rsName_evtAcreInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Microns</source>
            <extracomment>rsName_evtCubicMicrons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Congii (UK)</source>
            <extracomment>rsName_evtCongiiUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acetabula</source>
            <extracomment>rsName_evtAcetabula</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Heminae</source>
            <extracomment>rsName_evtHeminae</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sextarii</source>
            <extracomment>rsName_evtSextarii</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Congii (Roman)</source>
            <extracomment>rsName_evtCongii</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ligulae</source>
            <extracomment>rsName_evtLigulae</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Urnae</source>
            <extracomment>rsName_evtUrnae</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Amphorae (Roman)</source>
            <extracomment>rsName_evtRomanAmphorae</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Modii</source>
            <extracomment>rsName_evtModii</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Super Feet</source>
            <extracomment>rsName_evtSuperFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Board Feet</source>
            <extracomment>rsName_evtBoardFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cups (US 12 Oz)</source>
            <extracomment>rsName_evtCupsUS12</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cups (Canada)</source>
            <extracomment>rsName_evtCupsCanada</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cups (UK)</source>
            <extracomment>rsName_evtCupsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (US Beer)</source>
            <extracomment>rsName_evtBarrelsBeerUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (UK Beer)</source>
            <extracomment>rsName_evtBarrelsBeerUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (UK Wine)</source>
            <extracomment>rsName_evtBarrelsWineUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kegs (US Beer)</source>
            <extracomment>rsName_evtKegsBeerUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kegs (US Wine)</source>
            <extracomment>rsName_evtKegsWineUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kegs (UK Beer)</source>
            <extracomment>rsName_evtKegsBeerUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kegs (25 Litre)</source>
            <extracomment>rsName_evtKegs25</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kegs (50 Litre)</source>
            <extracomment>rsName_evtKegs50</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Firkins (Beer)</source>
            <extracomment>rsName_evtFirkinsBeer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilderkins (Beer)</source>
            <extracomment>rsName_evtKilderkinsBeer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hogsheads (Beer)</source>
            <extracomment>rsName_evtHogsheadsBeer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Drops (Water)</source>
            <extracomment>rsName_evtDropsWater</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Drops (Thick Fluid)</source>
            <extracomment>rsName_evtDropsThick</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decalitres</source>
            <extracomment>rsName_evtDecalitres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Kilometres</source>
            <extracomment>rsName_evtCubicKilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Miles</source>
            <extracomment>rsName_evtCubicMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Volumes</source>
            <extracomment>rsName_evtEarthVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luna Volumes</source>
            <extracomment>rsName_evtLunaVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mars Volumes</source>
            <extracomment>rsName_evtMarsVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Venus Volumes</source>
            <extracomment>rsName_evtVenusVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sheng (1930)</source>
            <extracomment>rsName_evtShengVol1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mercury Volumes</source>
            <extracomment>rsName_evtMercuryVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jupiter Volumes</source>
            <extracomment>rsName_evtJupiterVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Saturn Volumes</source>
            <extracomment>rsName_evtSaturnVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Uranus Volumes</source>
            <extracomment>rsName_evtUranusVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neptune Volumes</source>
            <extracomment>rsName_evtNeptuneVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces, Mertic (25ml)</source>
            <extracomment>rsName_evtFluidOuncesMetric25</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces, Mertic (30ml)</source>
            <extracomment>rsName_evtFluidOuncesMetric30</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Solar Volumes</source>
            <extracomment>rsName_evtSolarVolumes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Metres</source>
            <extracomment>rsName_eatSqMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Centimetres</source>
            <extracomment>rsName_eatSqCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Millimetres</source>
            <extracomment>rsName_eatSqMillimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Kilometres</source>
            <extracomment>rsName_eatSqKilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Inches</source>
            <extracomment>rsName_eatSqInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Feet</source>
            <extracomment>rsName_eatSqFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Yards</source>
            <extracomment>rsName_eatSqYards</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Miles</source>
            <extracomment>rsName_eatSqMiles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hectares</source>
            <extracomment>rsName_eatHectares</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ares</source>
            <extracomment>rsName_eatAres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acres</source>
            <extracomment>rsName_eatAcres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Roods</source>
            <extracomment>rsName_eatRoods</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dunams</source>
            <extracomment>rsName_eatDunams</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tsubo</source>
            <extracomment>rsName_eatTsubo</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tatami</source>
            <extracomment>rsName_eatTatami</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Microns</source>
            <extracomment>rsName_eatSqMicrons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Chains</source>
            <extracomment>rsName_eatSqChains</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Links</source>
            <extracomment>rsName_eatSqLinks</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Rods</source>
            <extracomment>rsName_eatSqRods</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Poles</source>
            <extracomment>rsName_eatSqPoles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Perches</source>
            <extracomment>rsName_eatSqPerches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Furlongs</source>
            <extracomment>rsName_eatSqFurlongs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Fathoms</source>
            <extracomment>rsName_eatSqFathoms</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sections</source>
            <extracomment>rsName_eatSections</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Townships</source>
            <extracomment>rsName_eatTownships</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pyong (Korea)</source>
            <extracomment>rsName_eatPyong</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ping (Taiwan)</source>
            <extracomment>rsName_eatPing</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Wah (Thai)</source>
            <extracomment>rsName_eatWah</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ngan (Thai)</source>
            <extracomment>rsName_eatNgan</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rai (Thai)</source>
            <extracomment>rsName_eatRai</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cents (India)</source>
            <extracomment>rsName_eatCents</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Mils</source>
            <extracomment>rsName_eatSqMils</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Circular Mils</source>
            <extracomment>rsName_eatCircularMils</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centiares</source>
            <extracomment>rsName_eatCentiares</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Deciares</source>
            <extracomment>rsName_eatDeciares</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Decares</source>
            <extracomment>rsName_eatDecares</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Micrometres</source>
            <extracomment>rsName_eatSqMicrometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Nanometres</source>
            <extracomment>rsName_eatSqNanometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Picometres</source>
            <extracomment>rsName_eatSqPicometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Femtometres</source>
            <extracomment>rsName_eatSqFemtometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Feet (US Survey)</source>
            <extracomment>rsName_eatSqFeetUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Inches (US Survey)</source>
            <extracomment>rsName_eatSqInchesUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Miles (US Survey)</source>
            <extracomment>rsName_eatSqMilesUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acres (US Survey)</source>
            <extracomment>rsName_eatAcresUSSurvey</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barns</source>
            <extracomment>rsName_eatBarns</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Fields (CAN)</source>
            <extracomment>rsName_eatFootballCan</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Olympic Soccer Fields</source>
            <extracomment>rsName_eatOlympicSoccer</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Football Fields (US)</source>
            <extracomment>rsName_eatFootballUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Homesteads</source>
            <extracomment>rsName_eatHomesteads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Planck Areas</source>
            <extracomment>rsName_eatPlanckAreas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper A3</source>
            <extracomment>rsName_eatPaperA3</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper A4</source>
            <extracomment>rsName_eatPaperA4</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper A5</source>
            <extracomment>rsName_eatPaperA5</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper Legal</source>
            <extracomment>rsName_eatPaperLegal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper Letter</source>
            <extracomment>rsName_eatPaperLetter</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Paper Foolscap</source>
            <extracomment>rsName_eatPaperFoolscap</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mu (1930)</source>
            <extracomment>rsName_eatMuArea1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Qing (1930)</source>
            <extracomment>rsName_eatQingArea1930</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pascals</source>
            <extracomment>rsName_eptPascals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hectopascals</source>
            <extracomment>rsName_eptHectopascals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilopascals</source>
            <extracomment>rsName_eptKilopascals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megapascals</source>
            <extracomment>rsName_eptMegapascals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bars</source>
            <extracomment>rsName_eptBars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millibars</source>
            <extracomment>rsName_eptMillibars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hectobars</source>
            <extracomment>rsName_eptHectobars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Atmospheres</source>
            <extracomment>rsName_eptAtmospheres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres of Mercury at 0°C</source>
            <extracomment>rsName_eptMillimetresOfMercury0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres of Mercury at 0°C</source>
            <extracomment>rsName_eptCentimetresOfMercury0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches of Mercury at 0°C</source>
            <extracomment>rsName_eptInchesOfMercury0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Torrs</source>
            <extracomment>rsName_eptTorrs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Sq Inch</source>
            <extracomment>rsName_eptPoundsPerSqInch</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>PSI</source>
            <extracomment>rsName_eptPSI</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Sq Foot</source>
            <extracomment>rsName_eptPoundsPerSqFoot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Sq Yard</source>
            <extracomment>rsName_eptPoundsPerSqYard</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Short) per Sq Foot</source>
            <extracomment>rsName_eptShortTonsPerSqFoot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Short) per Sq Inch</source>
            <extracomment>rsName_eptShortTonsPerSqInch</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Long) per Sq Foot</source>
            <extracomment>rsName_eptTonsPerSqFoot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Long) per Sq Inch</source>
            <extracomment>rsName_eptTonsPerSqInch</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dynes per Sq Centimetre</source>
            <extracomment>rsName_eptDynesPerSqCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dynes per Sq Metre</source>
            <extracomment>rsName_eptDynesPerSqMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Sq Centimetre</source>
            <extracomment>rsName_eptGramsPerSqCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Sq Metre</source>
            <extracomment>rsName_eptGramsPerSqMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Sq Centimetre</source>
            <extracomment>rsName_eptKilogramsPerSqCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Sq Metre</source>
            <extracomment>rsName_eptKilogramsPerSqMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tonnes per Sq Centimetre</source>
            <extracomment>rsName_eptTonnesPerSqCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tonnes per Sq Metre</source>
            <extracomment>rsName_eptTonnesPerSqMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newtons per Sq Metre</source>
            <extracomment>rsName_eptNewtonsPerSqMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres of Water at 4°C</source>
            <extracomment>rsName_eptMillimetresOfWater4C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres of Water at 4°C</source>
            <extracomment>rsName_eptCentimetresOfWater4C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres of Water at 4°C</source>
            <extracomment>rsName_eptMetresOfWater4C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Water at 4°C</source>
            <extracomment>rsName_eptFeetOfWater4C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Sea Water</source>
            <extracomment>rsName_eptFeetOfSeaWater</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres of Sea Water</source>
            <extracomment>rsName_eptMetresOfSeaWater</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches of Water at 4°C</source>
            <extracomment>rsName_eptInchesOfWater4C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigapascals</source>
            <extracomment>rsName_eptGigapascals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanonewtons per Sq Micron</source>
            <extracomment>rsName_eptNanonewtonsPerSqMicron</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Sq Foot</source>
            <extracomment>rsName_eptOuncesPerSqFoot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Sq Yard</source>
            <extracomment>rsName_eptOuncesPerSqYard</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Baryes</source>
            <extracomment>rsName_eptBaryes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Atmospheres (Technical)</source>
            <extracomment>rsName_eptAtmospheresTechnical</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Air (0°C)</source>
            <extracomment>rsName_eptFeetOfAir0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Air (15°C)</source>
            <extracomment>rsName_eptFeetOfAir15C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Head</source>
            <extracomment>rsName_eptFeetOfHead</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet of Mercury (0°C)</source>
            <extracomment>rsName_eptFeetOfMercury0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres Of Head</source>
            <extracomment>rsName_eptMetresOfHead</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millitorrs</source>
            <extracomment>rsName_eptMillitorrs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Micrometres of Mercury at 0°C</source>
            <extracomment>rsName_eptMicrometresOfMercury0C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres per Second</source>
            <extracomment>rsName_evtMetresPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres per Minute</source>
            <extracomment>rsName_evtMetresPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres per Hour</source>
            <extracomment>rsName_evtMetresPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres per Second</source>
            <extracomment>rsName_evtCentimetresPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres per Minute</source>
            <extracomment>rsName_evtCentimetresPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres per Hour</source>
            <extracomment>rsName_evtCentimetresPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres per Second</source>
            <extracomment>rsName_evtMillimetresPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres per Minute</source>
            <extracomment>rsName_evtMillimetresPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres per Hour</source>
            <extracomment>rsName_evtMillimetresPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Second</source>
            <extracomment>rsName_evtKilometresPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Minute</source>
            <extracomment>rsName_evtKilometresPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Hour</source>
            <extracomment>rsName_evtKilometresPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>KPH</source>
            <extracomment>rsName_evtKPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Second</source>
            <extracomment>rsName_evtMilesPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Minute</source>
            <extracomment>rsName_evtMilesPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Hour</source>
            <extracomment>rsName_evtMilesPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MPH</source>
            <extracomment>rsName_evtMPH</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet per Second</source>
            <extracomment>rsName_evtFeetPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet per Minute</source>
            <extracomment>rsName_evtFeetPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet per Hour</source>
            <extracomment>rsName_evtFeetPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Knots (UK)</source>
            <extracomment>rsName_evtKnotsUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Knots (US)</source>
            <extracomment>rsName_evtKnotsUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches per Second</source>
            <extracomment>rsName_evtInchesPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches per Minute</source>
            <extracomment>rsName_evtInchesPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches per Hour</source>
            <extracomment>rsName_evtInchesPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Speed of Light</source>
            <extracomment>rsName_evtSpeedOfLight</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Speed of Sound (Dry Air at Sea Level)</source>
            <extracomment>rsName_evtSpeedOfSound</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mach</source>
            <extracomment>rsName_evtMach</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microns per Second</source>
            <extracomment>rsName_evtMicronsPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microns per Microsecond</source>
            <extracomment>rsName_evtMicronsPerMicrosecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Yards per Second</source>
            <extracomment>rsName_evtYardsPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Yards per Minute</source>
            <extracomment>rsName_evtYardsPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Yards per Hour</source>
            <extracomment>rsName_evtYardsPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity</source>
            <extracomment>rsName_evtEscapeVelocity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Luna)</source>
            <extracomment>rsName_evtEscapeVelocityLuna</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Mars)</source>
            <extracomment>rsName_evtEscapeVelocityMars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Venus)</source>
            <extracomment>rsName_evtEscapeVelocityVenus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Mercury)</source>
            <extracomment>rsName_evtEscapeVelocityMercury</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Jupiter)</source>
            <extracomment>rsName_evtEscapeVelocityJupiter</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Saturn)</source>
            <extracomment>rsName_evtEscapeVelocitySaturn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Uranus)</source>
            <extracomment>rsName_evtEscapeVelocityUranus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Neptune)</source>
            <extracomment>rsName_evtEscapeVelocityNeptune</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Escape Velocity (Sun)</source>
            <extracomment>rsName_evtEscapeVelocitySun</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metres per Second Squared</source>
            <extracomment>rsName_eatMetresPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centimetres per Second Squared</source>
            <extracomment>rsName_eatCentimetresPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Feet per Second Squared</source>
            <extracomment>rsName_eatFeetPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inches per Second Squared</source>
            <extracomment>rsName_eatInchesPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity</source>
            <extracomment>rsName_eatGravity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millimetres per Second Squared</source>
            <extracomment>rsName_eatMillimetresPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Galileos</source>
            <extracomment>rsName_eatGalileos</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milligals</source>
            <extracomment>rsName_eatMilligals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microgals</source>
            <extracomment>rsName_eatMicrogals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Yards per Second Squared</source>
            <extracomment>rsName_eatYardsPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Luna)</source>
            <extracomment>rsName_eatGravityLuna</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Mars)</source>
            <extracomment>rsName_eatGravityMars</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Venus)</source>
            <extracomment>rsName_eatGravityVenus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Mercury)</source>
            <extracomment>rsName_eatGravityMercury</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Jupiter)</source>
            <extracomment>rsName_eatGravityJupiter</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Saturn)</source>
            <extracomment>rsName_eatGravitySaturn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Uranus)</source>
            <extracomment>rsName_eatGravityUranus</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Neptune)</source>
            <extracomment>rsName_eatGravityNeptune</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gravity (Sun)</source>
            <extracomment>rsName_eatGravitySun</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newtons</source>
            <extracomment>rsName_eftNewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millinewtons</source>
            <extracomment>rsName_eftMillinewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilonewtons</source>
            <extracomment>rsName_eftKilonewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Meganewtons</source>
            <extracomment>rsName_eftMeganewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Giganewtons</source>
            <extracomment>rsName_eftGiganewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dynes</source>
            <extracomment>rsName_eftDynes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms Force</source>
            <extracomment>rsName_eftKilogramsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams Force</source>
            <extracomment>rsName_eftGramsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds Force</source>
            <extracomment>rsName_eftPoundsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces Force</source>
            <extracomment>rsName_eftOuncesForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Poundals</source>
            <extracomment>rsName_eftPoundals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tonnes Force</source>
            <extracomment>rsName_eftTonnesForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Long) Force</source>
            <extracomment>rsName_eftTonsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons (Short) Force</source>
            <extracomment>rsName_eftShortTonsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Metre</source>
            <extracomment>rsName_eftJoulesPerMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanonewtons</source>
            <extracomment>rsName_eftNanonewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kiloponds</source>
            <extracomment>rsName_eftKiloponds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Crinals</source>
            <extracomment>rsName_eftCrinals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kips Force</source>
            <extracomment>rsName_eftKipsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilopounds Force</source>
            <extracomment>rsName_eftKilopoundsForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Atomic Units of Force</source>
            <extracomment>rsName_eftAUForce</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Funals</source>
            <extracomment>rsName_eftFunals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sthènes</source>
            <extracomment>rsName_eftSthenes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Micronewtons</source>
            <extracomment>rsName_eftMicronewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Piconewtons</source>
            <extracomment>rsName_eftPiconewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ponds</source>
            <extracomment>rsName_eftPonds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Centimetre</source>
            <extracomment>rsName_eftJoulesPerCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Kilometre</source>
            <extracomment>rsName_eftJoulesPerKilometre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Teranewtons</source>
            <extracomment>rsName_eftTeranewtons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules</source>
            <extracomment>rsName_eetJoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millijoules</source>
            <extracomment>rsName_eetMillijoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microjoules</source>
            <extracomment>rsName_eetMicrojoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanojoules</source>
            <extracomment>rsName_eetNanojoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilojoules</source>
            <extracomment>rsName_eetKilojoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megajoules</source>
            <extracomment>rsName_eetMegajoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigajoules</source>
            <extracomment>rsName_eetGigajoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ergs</source>
            <extracomment>rsName_eetErgs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (IT)</source>
            <extracomment>rsName_eetCaloriesIT</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Thermo-Chemical)</source>
            <extracomment>rsName_eetCaloriesTh</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Mean)</source>
            <extracomment>rsName_eetCaloriesMean</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (15°C)</source>
            <extracomment>rsName_eetCalories15C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (20°C)</source>
            <extracomment>rsName_eetCalories20C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (IT)</source>
            <extracomment>rsName_eetKilocaloriesIT</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (Thermo-Chemical)</source>
            <extracomment>rsName_eetKilocaloriesTh</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (Mean)</source>
            <extracomment>rsName_eetKilocaloriesMean</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (15°C)</source>
            <extracomment>rsName_eetKilocalories15C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (20°C)</source>
            <extracomment>rsName_eetKilocalories20C</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (IT)</source>
            <extracomment>rsName_eetBritishThermalUnitsIT</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (Thermo-Chemical)</source>
            <extracomment>rsName_eetBritishThermalUnitsTh</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (Mean)</source>
            <extracomment>rsName_eetBritishThermalUnitsMean</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (39°F)</source>
            <extracomment>rsName_eetBritishThermalUnits39F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (59°F)</source>
            <extracomment>rsName_eetBritishThermalUnits59F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>British Thermal Units (60°F)</source>
            <extracomment>rsName_eetBritishThermalUnits60F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (IT)</source>
            <extracomment>rsName_eetThermsIT</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (Thermo-Chemical)</source>
            <extracomment>rsName_eetThermsTh</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (Mean)</source>
            <extracomment>rsName_eetThermsMean</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (39°F)</source>
            <extracomment>rsName_eetTherms39F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (59°F)</source>
            <extracomment>rsName_eetTherms59F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Therms (60°F)</source>
            <extracomment>rsName_eetTherms60F</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Thermies</source>
            <extracomment>rsName_eetThermies</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newton Metres</source>
            <extracomment>rsName_eetNewtonMetres, rsName_ettNewtonMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Foot-Pounds</source>
            <extracomment>rsName_eetFootPounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Foot-Poundals</source>
            <extracomment>rsName_eetFootPoundals</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilogram Metres</source>
            <extracomment>rsName_eetKilogramMetres, rsName_ettKilogramMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watt Seconds</source>
            <extracomment>rsName_eetWattSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watt Minutes</source>
            <extracomment>rsName_eetWattMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watt Hours</source>
            <extracomment>rsName_eetWattHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watt Years</source>
            <extracomment>rsName_eetWattYears</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilowatt Seconds</source>
            <extracomment>rsName_eetKilowattSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilowatt Minutes</source>
            <extracomment>rsName_eetKilowattMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilowatt Hours</source>
            <extracomment>rsName_eetKilowattHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electron Volts</source>
            <extracomment>rsName_eetElectronVolts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilo-Electron Volts</source>
            <extracomment>rsName_eetKiloElectronVolts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mega-Electron Volts</source>
            <extracomment>rsName_eetMegaElectronVolts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Giga-Electron Volts</source>
            <extracomment>rsName_eetGigaElectronVolts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower Seconds</source>
            <extracomment>rsName_eetHorsepowerSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower Minutes</source>
            <extracomment>rsName_eetHorsepowerMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower Hours</source>
            <extracomment>rsName_eetHorsepowerHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terajoules</source>
            <extracomment>rsName_eetTerajoules</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watts</source>
            <extracomment>rsName_eptWatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilowatts</source>
            <extracomment>rsName_eptKilowatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megawatts</source>
            <extracomment>rsName_eptMegawatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigawatts</source>
            <extracomment>rsName_eptGigawatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliwatts</source>
            <extracomment>rsName_eptMilliwatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microwatts</source>
            <extracomment>rsName_eptMicrowatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Abwatts</source>
            <extracomment>rsName_eptAbwatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower (Mechanical)</source>
            <extracomment>rsName_eptHorsepower</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower (Metric)</source>
            <extracomment>rsName_eptHorsepowerMetric</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Foot-Pounds per Second</source>
            <extracomment>rsName_eptFootPoundsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilogram Metres per Second</source>
            <extracomment>rsName_eptKilogramMetresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Second</source>
            <extracomment>rsName_eptJoulesPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Minute</source>
            <extracomment>rsName_eptJoulesPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules per Hour</source>
            <extracomment>rsName_eptJoulesPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (IT) per Second</source>
            <extracomment>rsName_eptCaloriesITPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (IT) per Minute</source>
            <extracomment>rsName_eptCaloriesITPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (IT) per Hour</source>
            <extracomment>rsName_eptCaloriesITPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Th) per Second</source>
            <extracomment>rsName_eptCaloriesThPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Th) per Minute</source>
            <extracomment>rsName_eptCaloriesThPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Th) per Hour</source>
            <extracomment>rsName_eptCaloriesThPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (IT) per Second</source>
            <extracomment>rsName_eptKilocaloriesITPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (IT) per Minute</source>
            <extracomment>rsName_eptKilocaloriesITPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (IT) per Hour</source>
            <extracomment>rsName_eptKilocaloriesITPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (Th) per Second</source>
            <extracomment>rsName_eptKilocaloriesThPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (Th) per Minute</source>
            <extracomment>rsName_eptKilocaloriesThPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (Th) per Hour</source>
            <extracomment>rsName_eptKilocaloriesThPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pferdestärke</source>
            <extracomment>rsName_eptPferdestarke</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cheval Vapeur</source>
            <extracomment>rsName_eptChevalVapeur</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tons of Refrigeration</source>
            <extracomment>rsName_eptRefTons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (IT) Per Second</source>
            <extracomment>rsName_eptBTUsITPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (IT) Per Minute</source>
            <extracomment>rsName_eptBTUsITPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (IT) Per Hour</source>
            <extracomment>rsName_eptBTUsITPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Second</source>
            <extracomment>rsName_eptBTUsThPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Minute</source>
            <extracomment>rsName_eptBTUsThPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Thermo-Chemical) Per Hour</source>
            <extracomment>rsName_eptBTUsThPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Mean) Per Second</source>
            <extracomment>rsName_eptBTUsMeanPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Mean) Per Minute</source>
            <extracomment>rsName_eptBTUsMeanPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (Mean) Per Hour</source>
            <extracomment>rsName_eptBTUsMeanPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (39°F) Per Second</source>
            <extracomment>rsName_eptBTUs39FPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (39°F) Per Minute</source>
            <extracomment>rsName_eptBTUs39FPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (39°F) Per Hour</source>
            <extracomment>rsName_eptBTUs39FPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (59°F) Per Second</source>
            <extracomment>rsName_eptBTUs59FPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (59°F) Per Minute</source>
            <extracomment>rsName_eptBTUs59FPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (59°F) Per Hour</source>
            <extracomment>rsName_eptBTUs59FPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (60°F) Per Second</source>
            <extracomment>rsName_eptBTUs60FPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (60°F) Per Minute</source>
            <extracomment>rsName_eptBTUs60FPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (60°F) Per Hour</source>
            <extracomment>rsName_eptBTUs60FPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Horsepower (Electrical)</source>
            <extracomment>rsName_eptHorsepowerElectrical</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ergs per Second</source>
            <extracomment>rsName_eptErgsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanowatts</source>
            <extracomment>rsName_eptNanowatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Terawatts</source>
            <extracomment>rsName_eptTerawatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picowatts</source>
            <extracomment>rsName_eptPicowatts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Litre</source>
            <extracomment>rsName_eftKilometresPerLitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>KPL</source>
            <extracomment>rsName_eftKPL</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per 100 Kilometres</source>
            <extracomment>rsName_eftLitresPer100Kilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Litre</source>
            <extracomment>rsName_eftMilesPerLitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Gallon (UK)</source>
            <extracomment>rsName_eftMilesPerGallonUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Miles per Gallon (US)</source>
            <extracomment>rsName_eftMilesPerGallonUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MPG (UK)</source>
            <extracomment>rsName_eftMPGUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MPG (US)</source>
            <extracomment>rsName_eftMPGUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per 100 Kilometres</source>
            <extracomment>rsName_eftGallonsUKPer100Kilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per 100 Kilometres</source>
            <extracomment>rsName_eftGallonsUSPer100Kilometres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per 100 Miles</source>
            <extracomment>rsName_eftGallonsUKPer100Miles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per 100 Miles</source>
            <extracomment>rsName_eftGallonsUSPer100Miles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Gallon (UK)</source>
            <extracomment>rsName_eftKilometresPerGallonUK</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Gallon (US)</source>
            <extracomment>rsName_eftKilometresPerGallonUS</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per 100 Miles</source>
            <extracomment>rsName_eftLitresPer100Miles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Metres per Second</source>
            <extracomment>rsName_eftCubicMetresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per Second</source>
            <extracomment>rsName_eftLitresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per Minute</source>
            <extracomment>rsName_eftLitresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per Hour</source>
            <extracomment>rsName_eftLitresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per Day</source>
            <extracomment>rsName_eftLitresPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilitres per Second</source>
            <extracomment>rsName_eftMillilitresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilitres per Minute</source>
            <extracomment>rsName_eftMillilitresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilitres per Hour</source>
            <extracomment>rsName_eftMillilitresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolitres per Second</source>
            <extracomment>rsName_eftKilolitresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolitres per Minute</source>
            <extracomment>rsName_eftKilolitresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolitres per Hour</source>
            <extracomment>rsName_eftKilolitresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolitres per Day</source>
            <extracomment>rsName_eftKilolitresPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per Second</source>
            <extracomment>rsName_eftGallonsUKPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per Minute</source>
            <extracomment>rsName_eftGallonsUKPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per Hour</source>
            <extracomment>rsName_eftGallonsUKPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (UK) per Day</source>
            <extracomment>rsName_eftGallonsUKPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per Second</source>
            <extracomment>rsName_eftGallonsUSPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per Minute</source>
            <extracomment>rsName_eftGallonsUSPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per Hour</source>
            <extracomment>rsName_eftGallonsUSPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gallons (US) per Day</source>
            <extracomment>rsName_eftGallonsUSPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Second</source>
            <extracomment>rsName_eftFluidOuncesUKPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Minute</source>
            <extracomment>rsName_eftFluidOuncesUKPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (UK) per Hour</source>
            <extracomment>rsName_eftFluidOuncesUKPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (US) per Second</source>
            <extracomment>rsName_eftFluidOuncesUSPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (US) per Minute</source>
            <extracomment>rsName_eftFluidOuncesUSPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Fluid Ounces (US) per Hour</source>
            <extracomment>rsName_eftFluidOuncesUSPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Centimetres per Second</source>
            <extracomment>rsName_eftCubicCentimetresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Centimetres per Minute</source>
            <extracomment>rsName_eftCubicCentimetresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Centimetres per Hour</source>
            <extracomment>rsName_eftCubicCentimetresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Millimetres per Second</source>
            <extracomment>rsName_eftCubicMillimetresPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Millimetres per Minute</source>
            <extracomment>rsName_eftCubicMillimetresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Millimetres per Hour</source>
            <extracomment>rsName_eftCubicMillimetresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Metres per Minute</source>
            <extracomment>rsName_eftCubicMetresPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Metres per Hour</source>
            <extracomment>rsName_eftCubicMetresPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Metres per Day</source>
            <extracomment>rsName_eftCubicMetresPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Inches per Second</source>
            <extracomment>rsName_eftCubicInchesPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Inches per Minute</source>
            <extracomment>rsName_eftCubicInchesPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Inches per Hour</source>
            <extracomment>rsName_eftCubicInchesPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Feet per Second</source>
            <extracomment>rsName_eftCubicFeetPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Feet per Minute</source>
            <extracomment>rsName_eftCubicFeetPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Feet per Hour</source>
            <extracomment>rsName_eftCubicFeetPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Yards per Second</source>
            <extracomment>rsName_eftCubicYardsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Yards per Minute</source>
            <extracomment>rsName_eftCubicYardsPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cubic Yards per Hour</source>
            <extracomment>rsName_eftCubicYardsPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megagallons (UK) per Year (365 days)</source>
            <extracomment>rsName_eftMegaGallonsUKPerYear</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megagallons (US) per Year (365 days)</source>
            <extracomment>rsName_eftMegaGallonsUSPerYear</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acre-Feet per Year (365 days)</source>
            <extracomment>rsName_eftAcreFeetPerYear</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acre-Feet per Day</source>
            <extracomment>rsName_eftAcreFeetPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Acre-Inches per Day</source>
            <extracomment>rsName_eftAcreInchesPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Barrels (Oil) per Day</source>
            <extracomment>rsName_eftBarrelsOilPerDay</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cusecs</source>
            <extracomment>rsName_eftCusec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dyne Centimetres</source>
            <extracomment>rsName_ettDyneCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gram Centimetres</source>
            <extracomment>rsName_ettGramCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounce Inches</source>
            <extracomment>rsName_ettOunceInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pound Inches</source>
            <extracomment>rsName_ettPoundInches</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pound Feet</source>
            <extracomment>rsName_ettPoundFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Poundal Feet</source>
            <extracomment>rsName_ettPoundalFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ton (Long) Feet</source>
            <extracomment>rsName_ettTonFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ton (Short) Feet</source>
            <extracomment>rsName_ettShortTonFeet</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tonne Metres</source>
            <extracomment>rsName_ettTonneMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newton Microns</source>
            <extracomment>rsName_ettNewtonMicrons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanonewton Metres</source>
            <extracomment>rsName_ettNanonewtonMetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanonewton Microns</source>
            <extracomment>rsName_ettNanonewtonMicrons</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Newton Centimetres</source>
            <extracomment>rsName_ettNewtonCentimetres</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Becquerels</source>
            <extracomment>rsName_ertBecquerels</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilobecquerels</source>
            <extracomment>rsName_ertKilobecquerels</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megabecquerels</source>
            <extracomment>rsName_ertMegabecquerels</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigabecquerels</source>
            <extracomment>rsName_ertGigabecquerels</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Curies</source>
            <extracomment>rsName_ertCuries</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millicuries</source>
            <extracomment>rsName_ertMillicuries</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microcuries</source>
            <extracomment>rsName_ertMicrocuries</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rutherfords</source>
            <extracomment>rsName_ertRutherfords</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Second</source>
            <extracomment>rsName_eftKilogramsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Minute</source>
            <extracomment>rsName_eftKilogramsPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Hour</source>
            <extracomment>rsName_eftKilogramsPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Second</source>
            <extracomment>rsName_eftGramsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Minute</source>
            <extracomment>rsName_eftGramsPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Hour</source>
            <extracomment>rsName_eftGramsPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Second</source>
            <extracomment>rsName_eftPoundsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Minute</source>
            <extracomment>rsName_eftPoundsPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Hour</source>
            <extracomment>rsName_eftPoundsPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Second</source>
            <extracomment>rsName_eftOuncesPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Minute</source>
            <extracomment>rsName_eftOuncesPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Hour</source>
            <extracomment>rsName_eftOuncesPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Slugs per Second</source>
            <extracomment>rsName_eftSlugsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Slugs per Minute</source>
            <extracomment>rsName_eftSlugsPerMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Slugs per Hour</source>
            <extracomment>rsName_eftSlugsPerHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lux</source>
            <extracomment>rsName_eitLux</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lumens per Sq Metre</source>
            <extracomment>rsName_eitLumensPerSqM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Metre-Candles</source>
            <extracomment>rsName_eitMetreCandles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Foot-Candles</source>
            <extracomment>rsName_eitFootCandles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Phots</source>
            <extracomment>rsName_eitPhots</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>MilliPhots</source>
            <extracomment>rsName_eitMilliPhots</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Noon-Day Sun Brightness</source>
            <extracomment>rsName_eitNoonSun</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lumens per Sq Foot</source>
            <extracomment>rsName_eitLumensPerSqFt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nox</source>
            <extracomment>rsName_eitNox</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lumens per Sq Centimetre</source>
            <extracomment>rsName_eitLumensPerSqCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilux</source>
            <extracomment>rsName_eitMillilux</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolux</source>
            <extracomment>rsName_eitKilolux</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candelas</source>
            <extracomment>rsName_eltCandelas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candles (International)</source>
            <extracomment>rsName_eltCandles</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Hefner Units</source>
            <extracomment>rsName_eltHefnerUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Violle</source>
            <extracomment>rsName_eltViolle</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lumens per Steradian</source>
            <extracomment>rsName_eltLumensPerSteradian</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bougies (Decimal)</source>
            <extracomment>rsName_eltBougies</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Carcels</source>
            <extracomment>rsName_eltCarcels</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocandelas</source>
            <extracomment>rsName_eltKilocandelas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millicandelas</source>
            <extracomment>rsName_eltMillicandelas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candelas per Sq Metre</source>
            <extracomment>rsName_eltCandelasPerSqM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candelas per Sq Centimetre</source>
            <extracomment>rsName_eltCandelasPerSqCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candelas per Sq Foot</source>
            <extracomment>rsName_eltCandelasPerSqFt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lamberts</source>
            <extracomment>rsName_eltLamberts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilamberts</source>
            <extracomment>rsName_eltMillilamberts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Foot-Lamberts</source>
            <extracomment>rsName_eltFootLamberts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nits</source>
            <extracomment>rsName_eltNits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Stilbs</source>
            <extracomment>rsName_eltStilbs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Apostilbs</source>
            <extracomment>rsName_eltApostilbs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lumens</source>
            <extracomment>rsName_eltLumens</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millilumens</source>
            <extracomment>rsName_eltMillilumens</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolumens</source>
            <extracomment>rsName_eltKilolumens</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candela Steradians</source>
            <extracomment>rsName_eltCandelaSteradians</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Candle Power (Spherical)</source>
            <extracomment>rsName_eltCandlepowerSpherical</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Second</source>
            <extracomment>rsName_eatRadiansPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Minute</source>
            <extracomment>rsName_eatRadiansPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Hour</source>
            <extracomment>rsName_eatRadiansPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Second</source>
            <extracomment>rsName_eatDegreesPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Minute</source>
            <extracomment>rsName_eatDegreesPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Hour</source>
            <extracomment>rsName_eatDegreesPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Revolutions per Second</source>
            <extracomment>rsName_eatRevPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Revolutions per Minute</source>
            <extracomment>rsName_eatRevPerMin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Revolutions per Hour</source>
            <extracomment>rsName_eatRevPerHr</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>RPMs</source>
            <extracomment>rsName_eatRPM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Millisecond</source>
            <extracomment>rsName_eatRadiansPerMillisecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Microsecond</source>
            <extracomment>rsName_eatRadiansPerMicrosecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Millisecond</source>
            <extracomment>rsName_eatDegreesPerMillisecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Microsecond</source>
            <extracomment>rsName_eatDegreesPerMicrosecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Radians per Second Squared</source>
            <extracomment>rsName_eatRadiansPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Degrees per Second Squared</source>
            <extracomment>rsName_eatDegreesPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Revolutions per Second Squared</source>
            <extracomment>rsName_eatRevPerSec2</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>RPM per Second</source>
            <extracomment>rsName_eatRPMPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Cubic Metre</source>
            <extracomment>rsName_edtKgPerCuM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Cubic Centimetre</source>
            <extracomment>rsName_edtKgPerCuCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Cubic Metre</source>
            <extracomment>rsName_edtGPerCuM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Cubic Centimetre</source>
            <extracomment>rsName_edtGPerCuCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Cubic Foot</source>
            <extracomment>rsName_edtLbsPerCuFt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Cubic Inch</source>
            <extracomment>rsName_edtLbsPerCuIn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Cubic Foot</source>
            <extracomment>rsName_edtOzsPerCuFt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Cubic Inch</source>
            <extracomment>rsName_edtOzsPerCuIn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Picograms per Cubic Micron</source>
            <extracomment>rsName_edtPgPerCuMicron</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>ppm</source>
            <extracomment>rsName_edtppm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilograms per Litre</source>
            <extracomment>rsName_edtKilogramsPerLitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grams per Litre</source>
            <extracomment>rsName_edtGramsPerLitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milligrams per Litre</source>
            <extracomment>rsName_edtMilligramsPerLitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milligrams per Decilitre</source>
            <extracomment>rsName_edtMilligramsPerDecilitre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Plasmatic Glucose (mmol/l)</source>
            <extracomment>rsName_edtPlasmaticGlucose</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Gallon (US)</source>
            <extracomment>rsName_edtPoundsPerUSGallon</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pounds per Gallon (UK)</source>
            <extracomment>rsName_edtPoundsPerUKGallon</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Gallon (US)</source>
            <extracomment>rsName_edtOuncesPerUSGallon</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ounces per Gallon (UK)</source>
            <extracomment>rsName_edtOuncesPerUKGallon</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Earth Densities</source>
            <extracomment>rsName_edtEarthDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Luna Densities</source>
            <extracomment>rsName_edtLunaDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mars Densities</source>
            <extracomment>rsName_edtMarsDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Venus Densities</source>
            <extracomment>rsName_edtVenusDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Mercury Densities</source>
            <extracomment>rsName_edtMercuryDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Jupiter Densities</source>
            <extracomment>rsName_edtJupiterDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Saturn Densities</source>
            <extracomment>rsName_edtSaturnDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Uranus Densities</source>
            <extracomment>rsName_edtUranusDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Neptune Densities</source>
            <extracomment>rsName_edtNeptuneDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Solar Densities</source>
            <extracomment>rsName_edtSolarDensities</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pascal Seconds</source>
            <extracomment>rsName_evdtPascalSecs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Poises</source>
            <extracomment>rsName_evdtPoise</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centipoises</source>
            <extracomment>rsName_evdtCentipoise</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Poiseuilles</source>
            <extracomment>rsName_evdtPoiseuille</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Reynolds</source>
            <extracomment>rsName_evdtReynolds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pound Seconds per Square Foot</source>
            <extracomment>rsName_evdtLbSecsPerSqFt</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Pound Seconds per Square Inch</source>
            <extracomment>rsName_evdtLbSecsPerSqInch</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>PSI Seconds</source>
            <extracomment>rsName_evdtPSISecs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Dyne Seconds per Square Centimetre</source>
            <extracomment>rsName_evdtDyneSecsPerSqCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gram Seconds per Square Centimetre</source>
            <extracomment>rsName_evdtGSecsPerSqCM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilogram Seconds per Square Metre</source>
            <extracomment>rsName_evdtKGSecsPerSqM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Metres per Second</source>
            <extracomment>rsName_evktSqMPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Stokes</source>
            <extracomment>rsName_evktStokes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Centistokes</source>
            <extracomment>rsName_evktCentiStokes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Feet per Second</source>
            <extracomment>rsName_evktSqFtPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Square Centimetres per Second</source>
            <extracomment>rsName_evktSqCmPerSec</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Coulombs</source>
            <extracomment>rsName_eelcCoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Abcoulombs</source>
            <extracomment>rsName_eelcAbcoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Statcoulombs</source>
            <extracomment>rsName_eelcStatcoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocoulombs</source>
            <extracomment>rsName_eelcKilocoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megacoulombs</source>
            <extracomment>rsName_eelcMegacoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millicoulombs</source>
            <extracomment>rsName_eelcMillicoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microcoulombs</source>
            <extracomment>rsName_eelcMicrocoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ampere Seconds</source>
            <extracomment>rsName_eelcAmpSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ampere Minutes</source>
            <extracomment>rsName_eelcAmpMinutes</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Ampere Hours</source>
            <extracomment>rsName_eelcAmpHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliamp Hours (mAh)</source>
            <extracomment>rsName_eelcMilliampHours</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliamp Seconds (mAs)</source>
            <extracomment>rsName_eelcMilliampSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Elementary Charges</source>
            <extracomment>rsName_eelcElementaryCharges</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Faradays</source>
            <extracomment>rsName_eelcFaradays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Franklins</source>
            <extracomment>rsName_eelcFranklins</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Farad Volts</source>
            <extracomment>rsName_eelcFaradVolts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electrostatic Unit of Charge</source>
            <extracomment>rsName_eelcESU</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electromagnetic Unit of Charge</source>
            <extracomment>rsName_eelcEMU</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigacoulombs</source>
            <extracomment>rsName_eelcGigacoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanocoulombs</source>
            <extracomment>rsName_eelcNanocoulombs</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Coulombs (International)</source>
            <extracomment>rsName_eelcCoulombsInternational</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Amperes</source>
            <extracomment>rsName_ecAmps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Abamperes</source>
            <extracomment>rsName_ecAbamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Statamperes</source>
            <extracomment>rsName_ecStatamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kiloamperes</source>
            <extracomment>rsName_ecKiloamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megaamperes</source>
            <extracomment>rsName_ecMegaamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliamperes</source>
            <extracomment>rsName_ecMilliamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microamperes</source>
            <extracomment>rsName_ecMicroamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Coulombs per Second</source>
            <extracomment>rsName_ecCoulombsPerSecond</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Coulombs per Minute</source>
            <extracomment>rsName_ecCoulombsperMinute</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Coulombs per Hour</source>
            <extracomment>rsName_ecCoulombsperHour</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Biots</source>
            <extracomment>rsName_ecBiot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electromagnetic Unit of Current</source>
            <extracomment>rsName_ecEMU</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Electrostatic Unit of Current</source>
            <extracomment>rsName_ecESU</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanoamperes</source>
            <extracomment>rsName_ecNanoamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gilberts</source>
            <extracomment>rsName_ecGilberts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gigaamperes</source>
            <extracomment>rsName_ecGigaamps</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Amperes (International)</source>
            <extracomment>rsName_ecAmpsInternational</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Amperes per Metre</source>
            <extracomment>rsName_emtAmperesPerMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Oersteds</source>
            <extracomment>rsName_emtOersteds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gilberts per Metre</source>
            <extracomment>rsName_emtGilbertsPerMetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gilberts per Centimetre</source>
            <extracomment>rsName_emtGilbertsPerCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Amperes per Centimetre</source>
            <extracomment>rsName_emtAmperesPerCentimetre</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Webers</source>
            <extracomment>rsName_emWebers</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Maxwells</source>
            <extracomment>rsName_emMaxwells</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliwebers</source>
            <extracomment>rsName_emMilliwebers</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microwebers</source>
            <extracomment>rsName_emMicrowebers</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lines</source>
            <extracomment>rsName_emLines</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilolines</source>
            <extracomment>rsName_emKilolines</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Megalines</source>
            <extracomment>rsName_emMegalines</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Joules Per Ampere</source>
            <extracomment>rsName_emJoulesPerAmp</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Volt Seconds</source>
            <extracomment>rsName_emVoltSeconds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Teslas</source>
            <extracomment>rsName_emTeslas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gauss</source>
            <extracomment>rsName_emGauss</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milliteslas</source>
            <extracomment>rsName_emMilliteslas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microteslas</source>
            <extracomment>rsName_emMicroteslas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Nanoteslas</source>
            <extracomment>rsName_emNanoteslas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Gammas</source>
            <extracomment>rsName_emGammas</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Webers Per Square Metre</source>
            <extracomment>rsName_emWebersPerSqM</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Webers Per Square Centimetre</source>
            <extracomment>rsName_emWebersPerSqCm</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Maxwells Per Square Inch</source>
            <extracomment>rsName_emMaxwellsPerSqIn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Lines Per Square Inch</source>
            <extracomment>rsName_emLinesPerSqIn</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sieverts</source>
            <extracomment>rsName_erdSieverts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millisieverts</source>
            <extracomment>rsName_erdMillisieverts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microsieverts</source>
            <extracomment>rsName_erdMicrosieverts</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rems</source>
            <extracomment>rsName_erdRems</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millirems</source>
            <extracomment>rsName_erdMillirems</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microrems</source>
            <extracomment>rsName_erdMicrorems</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Grays</source>
            <extracomment>rsName_eraGrays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Milligrays</source>
            <extracomment>rsName_eraMilligrays</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Micrograys</source>
            <extracomment>rsName_eraMicrograys</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rads</source>
            <extracomment>rsName_eraRads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Millirads</source>
            <extracomment>rsName_eraMillirads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Microrads</source>
            <extracomment>rsName_eraMicrorads</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Temperature cannot be below -459.67 F</source>
            <extracomment>rsFahrenheitBelowZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Temperature cannot be below -273.15 C</source>
            <extracomment>rsCelsiusBelowZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Temperature cannot be below 0 Kelvin</source>
            <extracomment>rsKelvinBelowZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Temperature cannot be below 0 Rankine</source>
            <extracomment>rsRankineBelowZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilometres per Litre cannot be 0!</source>
            <extracomment>rsKPLZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Litres per 100 KM cannot be 0!</source>
            <extracomment>rsLP100KZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Unknown unit '%s'</source>
            <extracomment>rsUnknownUnit</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Unknown quantity '%s'</source>
            <extracomment>rsUnknownQuantity</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Days (Sidereal - Sun)</source>
            <extracomment>rsSunDaysSidereal</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watts per Metre Kelvin</source>
            <extracomment>rsThermWattsPerMetreKelvin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watts per Centimetre Celsius</source>
            <extracomment>rsThermWattsPerCentimetreCelsius</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilowatts per Metre Kelvin</source>
            <extracomment>rsThermKilowattsPerMetreKelvin</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (IT) per Second per Centimetre Celsius</source>
            <extracomment>rsThermCaloriesITPerSecCmC</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Calories (Th) per Second per Centimetre Celsius</source>
            <extracomment>rsThermCaloriesThPerSecCmC</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Kilocalories (IT) per Hour per Metre Celsius</source>
            <extracomment>rsThermKilocaloriesITPerHourMC</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (IT) per Hour per Foot Fahrenheit</source>
            <extracomment>rsThermBTUsITPerHourFootF</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>BTUs (IT) Inches per Hour per Sq Foot Fahrenheit</source>
            <extracomment>rsThermBTUsITInchPerHourSqFootF</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Watts per Foot Fahrenheit</source>
            <extracomment>rsThermWattsPerFootFahrenheit</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKITImperial</name>
        <message>
            <source>Ratio cannot be 0</source>
            <extracomment>rsImperialRatioZero</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cannot have different Powers</source>
            <extracomment>rsImperialDifferentPowers</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cannot have different Units</source>
            <extracomment>rsImperialDifferentUnits</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cannot Find Square Root with an odd Power</source>
            <extracomment>rsImperialOddPowerRoot</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>const</source>
            <extracomment>rsImperialConst</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Power</source>
            <extracomment>rsImperialPower</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKITFloatEdit</name>
        <message>
            <source>'%s' is outside the allowed range</source>
            <extracomment>rsValueOutOfBounds</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The value is not a finite number</source>
            <extracomment>rsValueNotFinite</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKIT_RS_Dialogs</name>
        <message>
            <source>Paper Tape</source>
            <extracomment>rsTapeHint</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Copy Tape</source>
            <extracomment>rsTapeCopy</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>value</source>
            <extracomment>rsDisplayAccName</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The value being entered or the last result</source>
            <extracomment>rsDisplayAccDescription</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>memory</source>
            <extracomment>rsMemoryAccName</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>The value held in memory</source>
            <extracomment>rsMemoryAccDescription</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>decimal places</source>
            <extracomment>rsDecimalsAccName</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>How many decimal places the value shows</source>
            <extracomment>rsDecimalsAccDescription</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>number base</source>
            <extracomment>rsBaseAccName</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bit length</source>
            <extracomment>rsBitsAccName</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Every number and operation so far, newest last</source>
            <extracomment>rsTapeAccDescription</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>zero</source>
            <extracomment>ZeroBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 0</source>
            <extracomment>ZeroBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>one</source>
            <extracomment>OneBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 1</source>
            <extracomment>OneBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>two</source>
            <extracomment>TwoBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 2</source>
            <extracomment>TwoBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>three</source>
            <extracomment>ThreeBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 3</source>
            <extracomment>ThreeBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>four</source>
            <extracomment>FourBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 4</source>
            <extracomment>FourBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>five</source>
            <extracomment>FiveBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 5</source>
            <extracomment>FiveBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>six</source>
            <extracomment>SixBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 6</source>
            <extracomment>SixBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>seven</source>
            <extracomment>SevenBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 7</source>
            <extracomment>SevenBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>eight</source>
            <extracomment>EightBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 8</source>
            <extracomment>EightBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>nine</source>
            <extracomment>NineBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the digit 9</source>
            <extracomment>NineBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>decimal point</source>
            <extracomment>PointBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Starts the decimals of the number</source>
            <extracomment>PointBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>plus</source>
            <extracomment>AddBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Adds the next number</source>
            <extracomment>AddBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>minus</source>
            <extracomment>SubtractBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Subtracts the next number</source>
            <extracomment>SubtractBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>times</source>
            <extracomment>MultiplyBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Multiplies by the next number</source>
            <extracomment>MultiplyBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>divided by</source>
            <extracomment>DivideBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Divides by the next number</source>
            <extracomment>DivideBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>equals</source>
            <extracomment>EqualsBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Completes the calculation and shows the result</source>
            <extracomment>EqualsBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>open bracket</source>
            <extracomment>LeftBracketBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Opens a bracket</source>
            <extracomment>LeftBracketBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>close bracket</source>
            <extracomment>RightBracketBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Closes the bracket and calculates its contents</source>
            <extracomment>RightBracketBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>all clear</source>
            <extracomment>AllClearBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Clears the calculation and the tape; the memory is kept</source>
            <extracomment>AllClearBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>clear entry</source>
            <extracomment>ClearBtn name, ClearBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Clears the value being entered</source>
            <extracomment>ClearBtn description, ClearBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>backspace</source>
            <extracomment>BackSpaceBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Deletes the last digit entered</source>
            <extracomment>BackSpaceBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>memory clear</source>
            <extracomment>MemoryClearBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sets the memory to zero</source>
            <extracomment>MemoryClearBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>memory recall</source>
            <extracomment>MemoryRecallBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Shows the value held in memory</source>
            <extracomment>MemoryRecallBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>memory add</source>
            <extracomment>MemoryAddBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Adds the value to the memory</source>
            <extracomment>MemoryAddBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>memory subtract</source>
            <extracomment>MemorySubtractBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Subtracts the value from the memory</source>
            <extracomment>MemorySubtractBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>OK</source>
            <extracomment>ExitBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Closes the calculator and takes the result</source>
            <extracomment>ExitBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>cancel</source>
            <extracomment>CancelBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Closes the calculator without taking the result</source>
            <extracomment>CancelBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>copy</source>
            <extracomment>CopyBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Copies the value to the clipboard</source>
            <extracomment>CopyBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>paste</source>
            <extracomment>PasteBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the number on the clipboard</source>
            <extracomment>PasteBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>change sign</source>
            <extracomment>ChangeSignBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Changes the sign of the value</source>
            <extracomment>ChangeSignBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>power</source>
            <extracomment>PowerBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Raises the value to the power of the next number; with inverse, takes that root</source>
            <extracomment>PowerBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>pi</source>
            <extracomment>PiBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the constant pi</source>
            <extracomment>PiBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Euler's number</source>
            <extracomment>EBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the constant e</source>
            <extracomment>EBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>square</source>
            <extracomment>SquareBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Squares the value</source>
            <extracomment>SquareBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>square root</source>
            <extracomment>SqRootBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Takes the square root of the value</source>
            <extracomment>SqRootBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>reciprocal</source>
            <extracomment>InvertBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Divides one by the value</source>
            <extracomment>InvertBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>common logarithm</source>
            <extracomment>LogBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm to base 10; with inverse, ten to the power of the value</source>
            <extracomment>LogBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>natural logarithm</source>
            <extracomment>LNBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm to base e; with inverse, e to the power of the value</source>
            <extracomment>LNBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>binary logarithm</source>
            <extracomment>Lg2btn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Logarithm to base 2; with inverse, two to the power of the value</source>
            <extracomment>Lg2btn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>sine</source>
            <extracomment>SinBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Sine of the value; with inverse the arcsine, with hyperbolic the hyperbolic sine</source>
            <extracomment>SinBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>cosine</source>
            <extracomment>CosBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Cosine of the value; with inverse the arccosine, with hyperbolic the hyperbolic cosine</source>
            <extracomment>CosBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>tangent</source>
            <extracomment>TanBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Tangent of the value; with inverse the arctangent, with hyperbolic the hyperbolic tangent</source>
            <extracomment>TanBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>inverse</source>
            <extracomment>InvBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Switches the next function to its inverse</source>
            <extracomment>InvBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hyperbolic</source>
            <extracomment>HypBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Switches the next trigonometric function to its hyperbolic form</source>
            <extracomment>HypBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>percent</source>
            <extracomment>PercentBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Takes the value as a percentage</source>
            <extracomment>PercentBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>angle unit</source>
            <extracomment>RadBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Switches between degrees, radians and gradians</source>
            <extracomment>RadBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>exponent</source>
            <extracomment>ExpBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Starts the power of ten of the number</source>
            <extracomment>ExpBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit A</source>
            <extracomment>ABtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit A</source>
            <extracomment>ABtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit B</source>
            <extracomment>BBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit B</source>
            <extracomment>BBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit C</source>
            <extracomment>CBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit C</source>
            <extracomment>CBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit D</source>
            <extracomment>DBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit D</source>
            <extracomment>DBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit E</source>
            <extracomment>EBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit E</source>
            <extracomment>EBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>hex digit F</source>
            <extracomment>FBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Enters the hexadecimal digit F</source>
            <extracomment>FBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>modulo</source>
            <extracomment>ModBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Remainder of the division by the next number</source>
            <extracomment>ModBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise and</source>
            <extracomment>ANDBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits set in both numbers</source>
            <extracomment>ANDBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise or</source>
            <extracomment>ORBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits set in either number</source>
            <extracomment>ORBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise exclusive or</source>
            <extracomment>XORBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits set in exactly one of the numbers</source>
            <extracomment>XORBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise not and</source>
            <extracomment>NANDBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits not set in both numbers</source>
            <extracomment>NANDBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise not or</source>
            <extracomment>NORBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits set in neither number</source>
            <extracomment>NORBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise not exclusive or</source>
            <extracomment>XNORBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Bits equal in both numbers</source>
            <extracomment>XNORBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>bitwise not</source>
            <extracomment>NotBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Inverts every bit of the value</source>
            <extracomment>NotBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>negate</source>
            <extracomment>NEGBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Changes the sign of the value (two's complement)</source>
            <extracomment>NEGBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shift left</source>
            <extracomment>SHLBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Shifts the bits one place to the left</source>
            <extracomment>SHLBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>shift right</source>
            <extracomment>SHRBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Shifts the bits one place to the right</source>
            <extracomment>SHRBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rotate left</source>
            <extracomment>ROLBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rotates the bits one place to the left</source>
            <extracomment>ROLBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>rotate right</source>
            <extracomment>RORBtn name</extracomment>
            <translation type="unfinished"/>
        </message>
        <message>
            <source>Rotates the bits one place to the right</source>
            <extracomment>RORBtn description</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
    <context>
        <name>QORKITExprEdit</name>
        <message>
            <source>'%s' cannot be evaluated</source>
            <extracomment>rsExpressionNotEvaluated</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
</TS>
