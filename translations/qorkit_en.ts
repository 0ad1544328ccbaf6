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
            <source>Temperature cannot be below absolute zero</source>
            <extracomment>rsRankineBelowZero</extracomment>
            <translation type="unfinished"/>
        </message>
    </context>
</TS>
