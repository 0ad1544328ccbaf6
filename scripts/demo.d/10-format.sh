run format 1234567.891 --decimals 2
run format 1234567.891 --decimals 2 --lakh
