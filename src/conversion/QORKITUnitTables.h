// The unit tables: one list per quantity, one row per unit in ordinal order.
//
//   X(Family, Kind, member, Token, Via, Factor, Source)
//
// Kind     how the unit reaches the Via unit:
//            Base  the quantity's base unit (Via names itself)
//            Same  a second name of the base unit, passed through unchanged
//            Lin   one unit is Factor Via units: to Via multiplies, from Via divides
//            LinD  as Lin, for a Token ending in a digit (routine names put "_" before the "2")
//            Div   one unit is 1/Factor Via units: to Via divides, from Via multiplies
//            DivD  as Div, for a Token ending in a digit
//            Fn    a rule that is not a scale (affine, reciprocal): the hand-written routines
//                  Family<Token>2<Via> and Family<Via>2<Token> do the work
//            SrcKg scaled like Lin out of the base unit, but taken unchanged into it
//            Slope an angle given as a rise: to Via is atan(x / Factor), from Via tan(x) * Factor
// Token    the short name of the unit in routine names (Dist<Token>2<Via>)
// Via      the Token of the unit that this unit is defined through; following Via from any unit
//          ends at the base unit
// Source   where the factor comes from:
//            Const  a named constant of the base library
//            Exact  an exact definition (SI prefixes, the international yard and pound, ...)
//            Nist   the conversion factor printed by NIST SP 811 (rounded as printed there)
//            Custom the customary definition of a historic, regional or everyday unit
//            Ref    a measured physical or astronomical value (CODATA, IAU, planetary fact sheets)
//
// Quantities with conversion routines pass their routine family as the first argument; the six
// quantities converted only through the tables (angles, time, computer storage, data rates,
// counting quantities, magnetic field strength) have no routines.
#pragma once

// clang-format off

// ---- Temperature: base Celsius; every other scale is affine ------------------------------------
#define QORKIT_UNITS_TEMP(X, Fam) \
    X(Fam, Fn,   ettKelvin,     K,       C, 0, Exact) \
    X(Fam, Fn,   ettFahrenheit, F,       C, 0, Exact) \
    X(Fam, Base, ettCelsius,    C,       C, 1, Exact) \
    X(Fam, Fn,   ettReaumur,    Reaumur, C, 0, Exact) \
    X(Fam, Fn,   ettRankine,    R,       C, 0, Exact) \
    X(Fam, Fn,   ettRomer,      Romer,   C, 0, Exact) \
    X(Fam, Fn,   ettDelisle,    Delisle, C, 0, Exact) \
    X(Fam, Fn,   ettNewton,     Newton,  C, 0, Exact)

// ---- Distance: base metres; the imperial units hang off the inch of 0.0254 m ------------------
#define QORKIT_UNITS_DIST(X, Fam) \
    X(Fam, Base, edtMetres,                 M,                   M,        1, Exact) \
    X(Fam, Lin,  edtCentimetres,            Cm,                  M,        0.01L, Exact) \
    X(Fam, Lin,  edtMillimetres,            Mm,                  M,        0.001L, Exact) \
    X(Fam, Lin,  edtMicrons,                Microns,             M,        1e-6L, Exact) \
    X(Fam, Lin,  edtMicrometres,            Micrometres,         M,        1e-6L, Exact) \
    X(Fam, Lin,  edtNanometres,             Nm,                  M,        1e-9L, Exact) \
    X(Fam, Lin,  edtAngstroms,              Angstroms,           M,        1e-10L, Exact) \
    X(Fam, Lin,  edtKilometres,             Km,                  M,        1000, Exact) \
    X(Fam, Lin,  edtFeet,                   Feet,                Inches,   12, Exact) \
    X(Fam, Lin,  edtMils,                   Mils,                Inches,   0.001L, Exact) \
    X(Fam, Lin,  edtInches,                 Inches,              M,        0.0254L, Exact) \
    X(Fam, Lin,  edtYards,                  Yards,               Feet,     3, Exact) \
    X(Fam, Lin,  edtMiles,                  Miles,               Yards,    1760, Exact) \
    X(Fam, Lin,  edtFathoms,                Fathoms,             Feet,     6, Exact) \
    X(Fam, LinD, edtShackles12,             Shackles12,          Fathoms,  12.5L, Custom) \
    X(Fam, LinD, edtShackles15,             Shackles15,          Fathoms,  15, Custom) \
    X(Fam, Lin,  edtNauticalMilesUK,        NauticalMilesUK,     Feet,     6080, Custom) \
    X(Fam, Lin,  edtNauticalMilesUS,        NauticalMilesUS,     M,        1853.248L, Custom) \
    X(Fam, Lin,  edtNauticalMilesInt,       NauticalMiles,       M,        1852, Exact) \
    X(Fam, Lin,  edtNauticalMilesTelegraph, NauticalMilesTel,    Feet,     6087, Custom) \
    X(Fam, Lin,  edtGeographicalMiles,      GeographicalMiles,   M,        1855.3248L, Custom) \
    X(Fam, Lin,  edtAdmiraltyMiles,         AdmiraltyMiles,      Feet,     6080, Custom) \
    X(Fam, Lin,  edtRomanMiles,             RomanMiles,          RomanFeet, 5000, Custom) \
    X(Fam, Lin,  edtRomanFeet,              RomanFeet,           M,        0.296L, Custom) \
    X(Fam, Div,  edtUnciae,                 Unciae,              RomanFeet, 12, Custom) \
    X(Fam, Lin,  edtScottishMiles,          ScottishMiles,       Yards,    1984, Custom) \
    X(Fam, Lin,  edtIrishMiles,             IrishMiles,          Yards,    2240, Custom) \
    X(Fam, Lin,  edtChains,                 Chains,              Yards,    22, Exact) \
    X(Fam, Lin,  edtEngChains,              EngChains,           Feet,     100, Exact) \
    X(Fam, Lin,  edtRods,                   Rods,                Yards,    5.5L, Exact) \
    X(Fam, Div,  edtLinks,                  Links,               Chains,   100, Exact) \
    X(Fam, Lin,  edtEngLinks,               EngLinks,            Feet,     1, Exact) \
    X(Fam, Lin,  edtHands,                  Hands,               Inches,   4, Exact) \
    X(Fam, Lin,  edtFeetUSSurvey,           FeetUSSurvey,        M,        OneFootUSSurvey, Const) \
    X(Fam, Lin,  edtInchesUSSurvey,         InchesUSSurvey,      M,        OneInchUSSurvey, Const) \
    X(Fam, Lin,  edtThous,                  Thous,               Inches,   0.001L, Exact) \
    X(Fam, Lin,  edtPoles,                  Poles,               Yards,    5.5L, Exact) \
    X(Fam, Lin,  edtPerches,                Perches,             Yards,    5.5L, Exact) \
    X(Fam, Lin,  edtFurlongs,               Furlongs,            Yards,    220, Exact) \
    X(Fam, Lin,  edtLeaguesUKLand,          LeaguesUKLand,       Miles,    3, Custom) \
    X(Fam, Lin,  edtLeaguesUKSea,           LeaguesUKSea,        NauticalMilesUK, 3, Custom) \
    X(Fam, Lin,  edtLeaguesUS,              LeaguesUS,           Miles,    3, Custom) \
    X(Fam, Lin,  edtAstronomicalUnits,      AUs,                 Km,       AstroUnit / 1000, Const) \
    X(Fam, Lin,  edtLightYears,             LightYears,          Km,       LightYear / 1000, Const) \
    X(Fam, LinD, edtLightYears365,          LightYears365,       Km,       LightYear365 / 1000, Const) \
    X(Fam, Lin,  edtParsecs,                Parsecs,             Km,       Parsec / 1000, Const) \
    X(Fam, Div,  edtPoints,                 Points,              Inches,   72, Exact) \
    X(Fam, Div,  edtPicas,                  Picas,               Inches,   6, Exact) \
    X(Fam, Lin,  edtLightSeconds,           LightSeconds,        Km,       LightSecond / 1000, Const) \
    X(Fam, Lin,  edtLightMinutes,           LightMinutes,        Km,       LightMinute / 1000, Const) \
    X(Fam, Lin,  edtLightHours,             LightHours,          Km,       LightHour / 1000, Const) \
    X(Fam, Lin,  edtLightDays,              LightDays,           Km,       LightDay / 1000, Const) \
    X(Fam, Lin,  edtPouces,                 Pouces,              Cm,       1200 / 443.296L, Custom) \
    X(Fam, Lin,  edtPieds,                  Pieds,               Pouces,   12, Custom) \
    X(Fam, Div,  edtBarleycorn,             Barleycorns,         Inches,   3, Custom) \
    X(Fam, Div,  edtParisPoint,             ParisPoints,         Pouces,   144, Custom) \
    X(Fam, Lin,  edtCubitsCommon,           CubitsCommon,        Inches,   18, Custom) \
    X(Fam, Lin,  edtCubitsRoman,            CubitsRoman,         RomanFeet, 1.5L, Custom) \
    X(Fam, Lin,  edtCubitsGreek,            CubitsGreek,         M,        0.4628L, Custom) \
    X(Fam, Lin,  edtCubitsShort,            CubitsShort,         M,        0.45L, Custom) \
    X(Fam, Lin,  edtSpans,                  Spans,               Inches,   9, Custom) \
    X(Fam, Lin,  edtSmoots,                 Smoots,              Inches,   67, Custom) \
    X(Fam, Div,  edtInchTenth,              InchTenths,          Inches,   10, Exact) \
    X(Fam, Div,  edtInchSixteenth,          InchSixteenths,      Inches,   16, Exact) \
    X(Fam, Div,  edtInchThirtySecond,       InchThirtySeconds,   Inches,   32, Exact) \
    X(Fam, Div,  edtInchSixtyFourth,        InchSixtyFourths,    Inches,   64, Exact) \
    X(Fam, Lin,  edtDecimetres,             Dm,                  M,        0.1L, Exact) \
    X(Fam, Lin,  edtDecametres,             Dam,                 M,        10, Exact) \
    X(Fam, Lin,  edtMicroinches,            Microinches,         Inches,   1e-6L, Exact) \
    X(Fam, Lin,  edtPicometres,             Pm,                  M,        1e-12L, Exact) \
    X(Fam, Lin,  edtFemtometres,            Fm,                  M,        1e-15L, Exact) \
    X(Fam, Lin,  edtFermi,                  Fermi,               M,        1e-15L, Exact) \
    X(Fam, Lin,  edtBohrRadius,             BohrRadii,           M,        5.29177210903e-11L, Ref) \
    X(Fam, Lin,  edtLightMilliseconds,      LightMilliseconds,   Km,       LightMillisecond / 1000, Const) \
    X(Fam, Lin,  edtLightMicroseconds,      LightMicroseconds,   Km,       LightMicrosecond / 1000, Const) \
    X(Fam, Lin,  edtMilesUSSurvey,          MilesUSSurvey,       M,        OneMileUSSurvey, Const) \
    X(Fam, Lin,  edtMegaparsecs,            Megaparsecs,         Parsecs,  1e6L, Const) \
    X(Fam, Lin,  edtGigaparsecs,            Gigaparsecs,         Parsecs,  1e9L, Const) \
    X(Fam, Lin,  edtFootballLensCan,        FootballLensCan,     Yards,    110, Custom) \
    X(Fam, Lin,  edtFootballWidthsCan,      FootballWidthsCan,   Yards,    65, Custom) \
    X(Fam, Lin,  edtCricketPitches,         CricketPitches,      Yards,    22, Custom) \
    X(Fam, Lin,  edtEarthRadii,             EarthRadii,          Km,       6371, Ref) \
    X(Fam, Lin,  edtEmpireStateBuildings,   EmpireStateBuildings, M,       381, Custom) \
    X(Fam, Lin,  edtGolfBallDiameters,      GolfBalls,           Inches,   1.68L, Custom) \
    X(Fam, Lin,  edtOlympicSoccerLens,      OlympicSoccerLens,   M,        105, Custom) \
    X(Fam, Lin,  edtOlympicSoccerWidths,    OlympicSoccerWidths, M,        68, Custom) \
    X(Fam, Lin,  edtOlympicPools,           OlympicPools,        M,        50, Custom) \
    X(Fam, Lin,  edtPingPongBallDiameters,  PingPongBalls,       Mm,       40, Custom) \
    X(Fam, Lin,  edtFootballLensUS,         FootballLensUS,      Yards,    100, Custom) \
    X(Fam, Lin,  edtFootbalWidthsUS,        FootballWidthsUS,    Feet,     160, Custom) \
    X(Fam, Lin,  edtPlanckLengths,          PlanckLengths,       M,        PlanckLength, Const) \
    X(Fam, Lin,  edtEarthRadiiEquatorial,   EarthRadiiEq,        Km,       6378.137L, Ref) \
    X(Fam, Lin,  edtEarthRadiiPolar,        EarthRadiiPolar,     Km,       6356.752L, Ref) \
    X(Fam, Lin,  edtLunaRadiiEquatorial,    LunaRadiiEq,         Km,       1738.1L, Ref) \
    X(Fam, Lin,  edtLunaRadiiPolar,         LunaRadiiPolar,      Km,       1736.0L, Ref) \
    X(Fam, Lin,  edtMarsRadiiEquatorial,    MarsRadiiEq,         Km,       3396.2L, Ref) \
    X(Fam, Lin,  edtMarsRadiiPolar,         MarsRadiiPolar,      Km,       3376.2L, Ref) \
    X(Fam, Lin,  edtSunToMars,              SunToMars,           Km,       227.956e6L, Ref) \
    X(Fam, Lin,  edtVenusRadiiEquatorial,   VenusRadiiEq,        Km,       6051.8L, Ref) \
    X(Fam, Lin,  edtVenusRadiiPolar,        VenusRadiiPolar,     Km,       6051.8L, Ref) \
    X(Fam, Lin,  edtSunToVenus,             SunToVenus,          Km,       108.210e6L, Ref) \
    X(Fam, LinD, edtLiDist1930, Li1930, M, 500, Custom) \
    X(Fam, DivD, edtChiDist1930, Chi1930, M, 3, Custom) \
    X(Fam, DivD, edtCunDist1930, Cun1930, Chi1930, 10, Custom) \
    X(Fam, Lin,  edtMercuryRadiiEquatorial, MercuryRadiiEq,      Km,       2440.5L, Ref) \
    X(Fam, Lin,  edtMercuryRadiiPolar,      MercuryRadiiPolar,   Km,       2438.3L, Ref) \
    X(Fam, Lin,  edtSunToMercury,           SunToMercury,        Km,       57.909e6L, Ref) \
    X(Fam, Lin,  edtJupiterRadiiEquatorial, JupiterRadiiEq,      Km,       71492, Ref) \
    X(Fam, Lin,  edtJupiterRadiiPolar,      JupiterRadiiPolar,   Km,       66854, Ref) \
    X(Fam, Lin,  edtSunToJupiter,           SunToJupiter,        Km,       778.479e6L, Ref) \
    X(Fam, Lin,  edtSaturnRadiiEquatorial,  SaturnRadiiEq,       Km,       60268, Ref) \
    X(Fam, Lin,  edtSaturnRadiiPolar,       SaturnRadiiPolar,    Km,       54364, Ref) \
    X(Fam, Lin,  edtSunToSaturn,            SunToSaturn,         Km,       1432.041e6L, Ref) \
    X(Fam, Lin,  edtUranusRadiiEquatorial,  UranusRadiiEq,       Km,       25559, Ref) \
    X(Fam, Lin,  edtUranusRadiiPolar,       UranusRadiiPolar,    Km,       24973, Ref) \
    X(Fam, Lin,  edtSunToUranus,            SunToUranus,         Km,       2867.043e6L, Ref) \
    X(Fam, Lin,  edtNeptuneRadiiEquatorial, NeptuneRadiiEq,      Km,       24764, Ref) \
    X(Fam, Lin,  edtNeptuneRadiiPolar,      NeptuneRadiiPolar,   Km,       24341, Ref) \
    X(Fam, Lin,  edtSunToNeptune,           SunToNeptune,        Km,       4514.953e6L, Ref) \
    X(Fam, Div,  edtInchEighth,             InchEighths,         Inches,   8, Exact) \
    X(Fam, Div,  edtInchThousandth,         InchThousandths,     Inches,   1000, Exact) \
    X(Fam, Lin,  edtSolarRadii,             SolarRadii,          Km,       695700, Ref)

// Routines between two units that are not a unit and its Via: X(Family, From, To, fromMember,
// toMember). They convert through the base unit like any other pair.
#define QORKIT_PAIRS_DIST(X, Fam) \
    X(Fam, Feet, M, edtFeet, edtMetres) \
    X(Fam, Yards, M, edtYards, edtMetres) \
    X(Fam, Miles, Km, edtMiles, edtKilometres) \
    X(Fam, Inches, Cm, edtInches, edtCentimetres)

// ---- Mass: base kilograms; the avoirdupois units hang off the pound of 0.45359237 kg ----------
#define QORKIT_UNITS_MASS(X, Fam) \
    X(Fam, Base,  emtKilograms,           Kg,               Kg,        1, Exact) \
    X(Fam, Lin,   emtGrams,               G,                Kg,        0.001L, Exact) \
    X(Fam, Lin,   emtMilligrams,          Mg,               G,         0.001L, Exact) \
    X(Fam, Lin,   emtTonnes,              Tonnes,           Kg,        1000, Exact) \
    X(Fam, Lin,   emtPounds,              Lbs,              Kg,        0.45359237L, Exact) \
    X(Fam, Div,   emtOunces,              Ounces,           Lbs,       16, Exact) \
    X(Fam, Lin,   emtStones,              Stones,           Lbs,       14, Exact) \
    X(Fam, Lin,   emtQuarters,            Quarters,         Lbs,       28, Exact) \
    X(Fam, Lin,   emtShortQuarters,       ShortQuarters,    Lbs,       25, Exact) \
    X(Fam, Lin,   emtTons,                Tons,             Lbs,       2240, Exact) \
    X(Fam, Lin,   emtShortTons,           ShortTons,        Lbs,       2000, Exact) \
    X(Fam, Lin,   emtHundredWeights,      Cwt,              Lbs,       112, Exact) \
    X(Fam, Lin,   emtShortHundredWeights, ShortCwt,         Lbs,       100, Exact) \
    X(Fam, Div,   emtDrams,               Drams,            Ounces,    16, Exact) \
    X(Fam, Div,   emtGrains,              Grains,           Ounces,    437.5L, Exact) \
    X(Fam, Lin,   emtScruples,            Scruples,         Grains,    20, Exact) \
    X(Fam, Lin,   emtMetricGrains,        MetricGrains,     Mg,        50, Exact) \
    X(Fam, Lin,   emtCarats,              Carats,           Mg,        200, Exact) \
    X(Fam, Lin,   emtPoints,              Points,           Mg,        2, Exact) \
    X(Fam, Lin,   emtTroyPounds,          TroyPounds,       Grains,    5760, Exact) \
    X(Fam, Lin,   emtTroyOunces,          TroyOunces,       Grains,    480, Exact) \
    X(Fam, Div,   emtRomanOunces,         RomanOunces,      RomanPounds, 12, Custom) \
    X(Fam, Lin,   emtRomanPounds,         RomanPounds,      G,         327.45L, Custom) \
    X(Fam, Lin,   emtPennyweights,        Pennyweights,     Grains,    24, Exact) \
    X(Fam, Lin,   emtSlugs,               Slugs,            Lbs,       9.80665L / 0.3048L, Exact) \
    X(Fam, Lin,   emtZentners,            Zentners,         Kg,        50, Custom) \
    X(Fam, Lin,   emtPfund,               Pfund,            G,         500, Custom) \
    X(Fam, Lin,   emtLivre,               Livre,            G,         489.5058L, Custom) \
    X(Fam, Lin,   emtMicrograms,          Micrograms,       G,         1e-6L, Exact) \
    X(Fam, Lin,   emtNanograms,           Nanograms,        G,         1e-9L, Exact) \
    X(Fam, Lin,   emtPicograms,           Picograms,        G,         1e-12L, Exact) \
    X(Fam, Lin,   emtKilopounds,          Kilopounds,       Lbs,       1000, Exact) \
    X(Fam, Lin,   emtKips,                Kips,             Lbs,       1000, Exact) \
    X(Fam, Lin,   emtTolas,               Tolas,            Grains,    180, Custom) \
    X(Fam, Lin,   emtTaelsChina,          TaelsChina,       G,         50, Custom) \
    X(Fam, Lin,   emtTaelsJap,            TaelsJap,         Momme,     10, Custom) \
    X(Fam, Lin,   emtMomme,               Momme,            G,         3.75L, Custom) \
    X(Fam, Lin,   emtBerkovets,           Berkovets,        Pood,      10, Custom) \
    X(Fam, Lin,   emtPood,                Pood,             Funt,      40, Custom) \
    X(Fam, Lin,   emtFunt,                Funt,             G,         409.51718L, Custom) \
    X(Fam, Div,   emtLot,                 Lot,              Funt,      32, Custom) \
    X(Fam, Div,   emtZolotnik,            Zolotnik,         Funt,      96, Custom) \
    X(Fam, Div,   emtDolya,               Dolya,            Zolotnik,  96, Custom) \
    X(Fam, Lin,   emtQuintals,            Quintals,         Lbs,       100, Custom) \
    X(Fam, Lin,   emtQuintalsMetric,      QuintalsMetric,   Kg,        100, Custom) \
    X(Fam, Lin,   emtCentners,            Centners,         Lbs,       100, Custom) \
    X(Fam, Lin,   emtCentnersMetric,      CentnersMetric,   Kg,        100, Custom) \
    X(Fam, Lin,   emtCentnersShortMetric, CentnersShortMetric, Kg,     50, Custom) \
    X(Fam, Lin,   emtLibras,              Libras,           RomanPounds, 1, Custom) \
    X(Fam, Lin,   emtLibrasMetric,        LibrasMetric,     G,         500, Custom) \
    X(Fam, SrcKg, emtKilotonnes,          Kilotonnes,       Kg,        1e6L, Exact) \
    X(Fam, SrcKg, emtMegatonnes,          Megatonnes,       Kg,        1e9L, Exact) \
    X(Fam, SrcKg, emtGigatonnes,          Gigatonnes,       Kg,        1e12L, Exact) \
    X(Fam, Lin,   emtFemtograms,          Femtograms,       G,         1e-15L, Exact) \
    X(Fam, Lin,   emtEarthMasses,         EarthMasses,      Kg,        5.9724e24L, Ref) \
    X(Fam, Lin,   emtGolfBallMasses,      GolfBalls,        G,         45.93L, Custom) \
    X(Fam, Lin,   emtPingPongBallMasses,  PingPongBalls,    G,         2.7L, Custom) \
    X(Fam, Lin,   emtProtonMassUnits,     ProtonMasses,     Kg,        1.67262192369e-27L, Ref) \
    X(Fam, Lin,   emtElectronMassUnits,   ElectronMasses,   Kg,        9.1093837015e-31L, Ref) \
    X(Fam, Lin,   emtNeutronMassUnits,    NeutronMasses,    Kg,        1.67492749804e-27L, Ref) \
    X(Fam, Lin,   emtAtomicMassUnits,     AtomicMassUnits,  Kg,        1.66053906660e-27L, Ref) \
    X(Fam, Lin,   emtPlanckMasses,        PlanckMasses,     Kg,        2.176434e-8L, Ref) \
    X(Fam, Lin,   emtLunaMasses,          LunaMasses,       Kg,        7.346e22L, Ref) \
    X(Fam, Lin,   emtMarsMasses,          MarsMasses,       Kg,        6.4171e23L, Ref) \
    X(Fam, Lin,   emtVenusMasses,         VenusMasses,      Kg,        4.8675e24L, Ref) \
    X(Fam, LinD, emtDanMass1930, Dan1930, Jin1930, 100, Custom) \
    X(Fam, LinD, emtJinMass1930, Jin1930, G, 500, Custom) \
    X(Fam, DivD, emtLiangMass1930, Liang1930, Jin1930, 16, Custom) \
    X(Fam, Lin,   emtMercuryMasses,       MercuryMasses,    Kg,        3.3011e23L, Ref) \
    X(Fam, Lin,   emtJupiterMasses,       JupiterMasses,    Kg,        1.89819e27L, Ref) \
    X(Fam, Lin,   emtSaturnMasses,        SaturnMasses,     Kg,        5.6834e26L, Ref) \
    X(Fam, Lin,   emtUranusMasses,        UranusMasses,     Kg,        8.6813e25L, Ref) \
    X(Fam, Lin,   emtNeptuneMasses,       NeptuneMasses,    Kg,        1.02413e26L, Ref) \
    X(Fam, LinD,  emtOuncesMetric25,      OuncesMetric25,   G,         25, Custom) \
    X(Fam, LinD,  emtOuncesMetric30,      OuncesMetric30,   G,         30, Custom) \
    X(Fam, Lin,   emtSolarMasses,         SolarMasses,      Kg,        1.98847e30L, Ref)

#define QORKIT_PAIRS_MASS(X, Fam) \
    X(Fam, G, Ounces, emtGrams, emtOunces) \
    X(Fam, G, Lbs, emtGrams, emtPounds) \
    X(Fam, G, Grains, emtGrams, emtGrains) \
    X(Fam, Tons, Kg, emtTons, emtKilograms)

// ---- Volume: base litres; the imperial measures hang off the pint (OnePint litres), the US
// ones off their ratio to it, the dry measures off cubic centimetres ------------------------------
#define QORKIT_UNITS_VOL(X, Fam) \
    X(Fam, Lin,  evtCubicMetres,          CubicM,          L,          1000, Exact) \
    X(Fam, Base, evtLitres,               L,               L,          1, Exact) \
    X(Fam, Lin,  evtMillilitres,          Ml,              L,          0.001L, Exact) \
    X(Fam, Lin,  evtKilolitres,           Kl,              L,          1000, Exact) \
    X(Fam, Lin,  evtDeciLitres,           Dl,              L,          0.1L, Exact) \
    X(Fam, Lin,  evtCentilitres,          Cl,              L,          0.01L, Exact) \
    X(Fam, Lin,  evtHectolitres,          Hl,              L,          100, Exact) \
    X(Fam, Lin,  evtMicrolitres,          Microlitres,     L,          1e-6L, Exact) \
    X(Fam, Lin,  evtPintsUK,              UKPints,         L,          OnePint, Const) \
    X(Fam, Lin,  evtPintsUS,              USPints,         UKPints,    0.473176473L / OnePint, Exact) \
    X(Fam, Lin,  evtQuartsUK,             UKQuarts,        UKPints,    2, Exact) \
    X(Fam, Lin,  evtQuartsUS,             USQuarts,        USPints,    2, Exact) \
    X(Fam, Lin,  evtGallonsUK,            UKGallons,       UKPints,    8, Exact) \
    X(Fam, Lin,  evtGallonsUS,            USGallons,       USPints,    8, Exact) \
    X(Fam, Div,  evtGillsUK,              UKGills,         UKPints,    4, Exact) \
    X(Fam, Div,  evtGillsUS,              USGills,         USPints,    4, Exact) \
    X(Fam, Div,  evtFluidOuncesUK,        UKFlOz,          UKPints,    20, Exact) \
    X(Fam, Div,  evtFluidOuncesUS,        USFlOz,          USPints,    16, Exact) \
    X(Fam, Div,  evtFluidDramsUK,         UKFlDrams,       UKFlOz,     8, Exact) \
    X(Fam, Div,  evtFluidDramsUS,         USFlDrams,       USFlOz,     8, Exact) \
    X(Fam, Div,  evtTeaspoonUS,           USTsp,           USFlOz,     6, Custom) \
    X(Fam, Div,  evtTeaspoonUK,           UKTsp,           UKTbsp,     3, Custom) \
    X(Fam, Lin,  evtTeaspoonMetric,       MetricTsp,       Ml,         5, Custom) \
    X(Fam, Lin,  evtDessertspoonUS,       USDsp,           USTsp,      2, Custom) \
    X(Fam, Lin,  evtDessertspoonUK,       UKDsp,           UKTsp,      2, Custom) \
    X(Fam, Lin,  evtDessertspoonMetric,   MetricDsp,       Ml,         10, Custom) \
    X(Fam, Lin,  evtTablespoonUS,         USTbsp,          USTsp,      3, Custom) \
    X(Fam, Lin,  evtTablespoonUK,         UKTbsp,          UKFlOz,     0.625L, Custom) \
    X(Fam, Lin,  evtTablespoonMetricAus,  AusTbsp,         Ml,         20, Custom) \
    X(Fam, Lin,  evtTablespoonMetricOther, MetricTbsp,     Ml,         15, Custom) \
    X(Fam, Lin,  evtCubicCentimetres,     CC,              L,          0.001L, Exact) \
    X(Fam, Lin,  evtCubicMillimetres,     CubicMm,         CC,         0.001L, Exact) \
    X(Fam, Lin,  evtCubicDecimetres,      CubicDm,         L,          1, Exact) \
    X(Fam, Lin,  evtPintsUKDry,           UKDryPints,      CC,         568.26125L, Exact) \
    X(Fam, Lin,  evtPintsUSDry,           USDryPints,      CC,         550.6104713575L, Exact) \
    X(Fam, Lin,  evtQuartsUKDry,          UKDryQuarts,     UKDryPints, 2, Exact) \
    X(Fam, Lin,  evtQuartsUSDry,          USDryQuarts,     USDryPints, 2, Exact) \
    X(Fam, Lin,  evtGallonsUKdry,         UKDryGallons,    UKDryPints, 8, Exact) \
    X(Fam, Lin,  evtGallonsUSDry,         USDryGallons,    USDryPints, 8, Exact) \
    X(Fam, Lin,  evtPecksUK,              UKPecks,         CC,         9092.18L, Exact) \
    X(Fam, Lin,  evtPecksUS,              USPecks,         USDryGallons, 2, Exact) \
    X(Fam, Lin,  evtBushellsUK,           UKBushels,       UKPecks,    4, Exact) \
    X(Fam, Lin,  evtBushellsUS,           USBushels,       USPecks,    4, Exact) \
    X(Fam, Lin,  evtBarrelsOil,           OilBarrels,      USGallons,  42, Exact) \
    X(Fam, Lin,  evtBarrelsDry,           DryBarrels,      CubicInches, 7056, Exact) \
    X(Fam, Lin,  evtBarrelsLiquid,        LiquidBarrels,   USGallons,  31.5L, Exact) \
    X(Fam, Lin,  evtCubicInches,          CubicInches,     CC,         16.387064L, Exact) \
    X(Fam, Lin,  evtCubicFathoms,         CubicFathoms,    CubicFeet,  216, Exact) \
    X(Fam, Lin,  evtCubicFeet,            CubicFeet,       CubicInches, 1728, Exact) \
    X(Fam, Lin,  evtCubicYards,           CubicYards,      CubicFeet,  27, Exact) \
    X(Fam, Lin,  evtCupsMetric,           MetricCups,      Ml,         250, Custom) \
    X(Fam, Lin,  evtCupsUS,               USCups,          USFlOz,     8, Custom) \
    X(Fam, Lin,  evtMegaGallonsUK,        UKMegaGallons,   UKGallons,  1e6L, Exact) \
    X(Fam, Lin,  evtMegaGallonsUS,        USMegaGallons,   USGallons,  1e6L, Exact) \
    X(Fam, Lin,  evtAcreFeet,             AcreFeet,        CubicFeet,  43560, Exact) \
    X(Fam, Lin,  evtAcreInches,           AcreInches,      CubicFeet,  3630, Exact) \
    X(Fam, Lin,  evtCubicMicrons,         CubicMicrons,    CubicMm,    1e-9L, Exact) \
    X(Fam, Lin,  evtCongiiUK,             UKCongii,        UKGallons,  1, Custom) \
    X(Fam, Div,  evtAcetabula,            Acetabula,       Sextarii,   8, Custom) \
    X(Fam, Div,  evtHeminae,              Heminae,         Sextarii,   2, Custom) \
    X(Fam, Lin,  evtSextarii,             Sextarii,        L,          0.546L, Custom) \
    X(Fam, Lin,  evtCongii,               Congii,          Sextarii,   6, Custom) \
    X(Fam, Div,  evtLigulae,              Ligulae,         Sextarii,   48, Custom) \
    X(Fam, Lin,  evtUrnae,                Urnae,           Sextarii,   24, Custom) \
    X(Fam, Lin,  evtRomanAmphorae,        Amphorae,        Sextarii,   48, Custom) \
    X(Fam, Lin,  evtModii,                Modii,           Sextarii,   16, Custom) \
    X(Fam, Lin,  evtSuperFeet,            SuperFeet,       CubicInches, 144, Exact) \
    X(Fam, Lin,  evtBoardFeet,            BoardFeet,       CubicInches, 144, Exact) \
    X(Fam, Lin,  evtCupsUS12,             USCups12Oz,      USFlOz,     12, Custom) \
    X(Fam, Lin,  evtCupsCanada,           CanadaCups,      UKFlOz,     8, Custom) \
    X(Fam, Lin,  evtCupsUK,               UKCups,          UKFlOz,     10, Custom) \
    X(Fam, Lin,  evtBarrelsBeerUS,        USBeerBarrels,   USGallons,  31, Custom) \
    X(Fam, Lin,  evtBarrelsBeerUK,        UKBeerBarrels,   UKGallons,  36, Custom) \
    X(Fam, Lin,  evtBarrelsWineUK,        UKWineBarrels,   USGallons,  31.5L, Custom) \
    X(Fam, Div,  evtKegsBeerUS,           USBeerKegs,      USBeerBarrels, 2, Custom) \
    X(Fam, Div,  evtKegsWineUS,           USWineKegs,      USBeerBarrels, 6, Custom) \
    X(Fam, Lin,  evtKegsBeerUK,           UKBeerKegs,      UKGallons,  11, Custom) \
    X(Fam, LinD, evtKegs25,               Kegs25,          L,          25, Custom) \
    X(Fam, LinD, evtKegs50,               Kegs50,          L,          50, Custom) \
    X(Fam, Lin,  evtFirkinsBeer,          Firkins,         UKGallons,  9, Custom) \
    X(Fam, Lin,  evtKilderkinsBeer,       Kilderkins,      UKGallons,  18, Custom) \
    X(Fam, Lin,  evtHogsheadsBeer,        Hogsheads,       UKGallons,  54, Custom) \
    X(Fam, Lin,  evtDropsWater,           WaterDrops,      Ml,         0.05L, Custom) \
    X(Fam, Lin,  evtDropsThick,           ThickDrops,      Ml,         0.1L, Custom) \
    X(Fam, Lin,  evtDecalitres,           Decalitres,      L,          10, Exact) \
    X(Fam, Lin,  evtGolfBalls,            GolfBalls,       CC,         QORPi / 6 * 4.267L * 4.267L * 4.267L, Custom) \
    X(Fam, Lin,  evtOlympicPools,         OlympicPools,    CubicM,     2500, Custom) \
    X(Fam, Lin,  evtPingPongBalls,        PingPongBalls,   CC,         QORPi / 6 * 64, Custom) \
    X(Fam, Lin,  evtCubicKilometres,      CubicKm,         CubicM,     1e9L, Exact) \
    X(Fam, Lin,  evtCubicMiles,           CubicMiles,      CubicM,     1609.344L * 1609.344L * 1609.344L, Exact) \
    X(Fam, Lin,  evtEarthVolumes,         EarthVolumes,    CubicKm,    108.321e10L, Ref) \
    X(Fam, Lin,  evtLunaVolumes,          LunaVolumes,     CubicKm,    2.1958e10L, Ref) \
    X(Fam, Lin,  evtMarsVolumes,          MarsVolumes,     CubicKm,    16.318e10L, Ref) \
    X(Fam, Lin,  evtVenusVolumes,         VenusVolumes,    CubicKm,    92.843e10L, Ref) \
    X(Fam, Same, evtShengVol1930, Sheng1930, L, 1, Custom) \
    X(Fam, Lin,  evtMercuryVolumes,       MercuryVolumes,  CubicKm,    6.083e10L, Ref) \
    X(Fam, Lin,  evtJupiterVolumes,       JupiterVolumes,  CubicKm,    143128e10L, Ref) \
    X(Fam, Lin,  evtSaturnVolumes,        SaturnVolumes,   CubicKm,    82713e10L, Ref) \
    X(Fam, Lin,  evtUranusVolumes,        UranusVolumes,   CubicKm,    6833e10L, Ref) \
    X(Fam, Lin,  evtNeptuneVolumes,       NeptuneVolumes,  CubicKm,    6254e10L, Ref) \
    X(Fam, LinD, evtFluidOuncesMetric25,  FlOzMetric25,    Ml,         25, Custom) \
    X(Fam, LinD, evtFluidOuncesMetric30,  FlOzMetric30,    Ml,         30, Custom) \
    X(Fam, Lin,  evtSolarVolumes,         SolarVolumes,    CubicKm,    1.412e18L, Ref)

#define QORKIT_PAIRS_VOL(X, Fam) \
    X(Fam, Gallons, Pints, evtGallonsUK, evtPintsUK) \
    X(Fam, UKGallons, L, evtGallonsUK, evtLitres) \
    X(Fam, USGallons, L, evtGallonsUS, evtLitres) \
    X(Fam, USPints, L, evtPintsUS, evtLitres)

// clang-format on
