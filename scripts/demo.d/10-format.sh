run format 1234567.891 --decimals 2
run format 1234567.891 --decimals 2 --lakh
run format -0.125 --decimals 2 --trim
run format 6.02214076E23 --sci --decimals 5
run format --hex -123
