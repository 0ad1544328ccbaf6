run convert 100 Fahrenheit Celsius
run convert 1 mile km
run convert 8 "Litres per 100 Kilometres" "MPG (UK)"
run convert 1 Minutes Seconds --quantity Time
run units Temperature
run convert 6 foot m
run convert 98.6 °F °C
