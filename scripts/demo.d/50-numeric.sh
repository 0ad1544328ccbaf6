run astro 2024-06-21 --lat 51.4779 --lon -0.0015 --offset 1
run astro 2024-12-21 --lat 69.6492 --lon 18.9553 --offset 1
run nav 51.5074 -0.1278 40.7128 -74.0060 --unit km
run nav 51.5074 -0.1278 --bearing 288.33 --distance 500
run complex mul 3,4 1,-2 --decimals 2
run complex roots -8 3 --decimals 4
run complex quadratic 1 2 5 --decimals 2
run euro DEM 100
run euro ITL 1 --from-euro
