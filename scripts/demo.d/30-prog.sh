run prog --base hex --bits 8 "7F + 1 ="
run prog --base dec "2 + 3 * 4 = M+ 5 NEG SHL:3 ="
run prog --base hex --bits 8 --size-change extend "FF BITS16"
