// The unit tables, continued: the mechanical, flow, light, electrical and radiation quantities,
// and the six quantities converted only through their tables. The row format is described in
// QORKITUnitTables.h.
#pragma once

// clang-format off

// ---- Area: base square metres ------------------------------------------------------------------
#define QORKIT_UNITS_AREA(X, Fam) \
    X(Fam, Base, eatSqMetres,         SqM,            SqM,        1, Exact) \
    X(Fam, Lin,  eatSqCentimetres,    SqCm,           SqM,        1e-4L, Exact) \
    X(Fam, Lin,  eatSqMillimetres,    SqMm,           SqM,        1e-6L, Exact) \
    X(Fam, Lin,  eatSqKilometres,     SqKm,           SqM,        1e6L, Exact) \
    X(Fam, Lin,  eatSqInches,         SqInches,       SqCm,       6.4516L, Exact) \
    X(Fam, Lin,  eatSqFeet,           SqFeet,         SqInches,   144, Exact) \
    X(Fam, Lin,  eatSqYards,          SqYards,        SqFeet,     9, Exact) \
    X(Fam, Lin,  eatSqMiles,          SqMiles,        SqYards,    3097600, Exact) \
    X(Fam, Lin,  eatHectares,         Hectares,       SqM,        10000, Exact) \
    X(Fam, Lin,  eatAres,             Ares,           SqM,        100, Exact) \
    X(Fam, Lin,  eatAcres,            Acres,          SqYards,    4840, Exact) \
    X(Fam, Lin,  eatRoods,            Roods,          SqYards,    1210, Exact) \
    X(Fam, Lin,  eatDunams,           Dunams,         SqM,        1000, Custom) \
    X(Fam, Lin,  eatTsubo,            Tsubo,          SqM,        400 / 121.0L, Custom) \
    X(Fam, Div,  eatTatami,           Tatami,         Tsubo,      2, Custom) \
    X(Fam, Lin,  eatPerches,          Perches,        SqYards,    30.25L, Exact) \
    X(Fam, Lin,  eatSqMicrons,        SqMicrons,      SqM,        1e-12L, Exact) \
    X(Fam, Lin,  eatSqChains,         SqChains,       SqYards,    484, Exact) \
    X(Fam, Lin,  eatSqLinks,          SqLinks,        SqChains,   1e-4L, Exact) \
    X(Fam, Lin,  eatSqRods,           SqRods,         SqYards,    30.25L, Exact) \
    X(Fam, Lin,  eatSqPoles,          SqPoles,        SqYards,    30.25L, Exact) \
    X(Fam, Lin,  eatSqPerches,        SqPerches,      SqYards,    30.25L, Exact) \
    X(Fam, Lin,  eatSqFurlongs,       SqFurlongs,     SqYards,    48400, Exact) \
    X(Fam, Lin,  eatSqFathoms,        SqFathoms,      SqFeet,     36, Exact) \
    X(Fam, Lin,  eatSections,         Sections,       SqMiles,    1, Exact) \
    X(Fam, Lin,  eatTownships,        Townships,      SqMiles,    36, Exact) \
    X(Fam, Lin,  eatPyong,            Pyong,          SqM,        400 / 121.0L, Custom) \
    X(Fam, Lin,  eatPing,             Ping,           SqM,        400 / 121.0L, Custom) \
    X(Fam, Lin,  eatWah,              Wah,            SqM,        4, Custom) \
    X(Fam, Lin,  eatNgan,             Ngan,           SqM,        400, Custom) \
    X(Fam, Lin,  eatRai,              Rai,            SqM,        1600, Custom) \
    X(Fam, Lin,  eatCents,            Cents,          Acres,      0.01L, Custom) \
    X(Fam, Lin,  eatSqMils,           SqMils,         SqInches,   1e-6L, Exact) \
    X(Fam, Lin,  eatCircularMils,     CircularMils,   SqMils,     QORPi / 4, Exact) \
    X(Fam, Lin,  eatCentiares,        Centiares,      SqM,        1, Exact) \
    X(Fam, Lin,  eatDeciares,         Deciares,       SqM,        10, Exact) \
    X(Fam, Lin,  eatDecares,          Decares,        SqM,        1000, Exact) \
    X(Fam, Lin,  eatSqMicrometres,    SqMicrometres,  SqM,        1e-12L, Exact) \
    X(Fam, Lin,  eatSqNanometres,     SqNm,           SqM,        1e-18L, Exact) \
    X(Fam, Lin,  eatSqPicometres,     SqPm,           SqM,        1e-24L, Exact) \
    X(Fam, Lin,  eatSqFemtometres,    SqFm,           SqM,        1e-30L, Exact) \
    X(Fam, Lin,  eatSqFeetUSSurvey,   SqFeetUSSurvey, SqM,        OneFootUSSurvey * OneFootUSSurvey, Const) \
    X(Fam, Lin,  eatSqInchesUSSurvey, SqInchesUSSurvey, SqM,      OneInchUSSurvey * OneInchUSSurvey, Const) \
    X(Fam, Lin,  eatSqMilesUSSurvey,  SqMilesUSSurvey, SqM,       OneMileUSSurvey * OneMileUSSurvey, Const) \
    X(Fam, Lin,  eatAcresUSSurvey,    AcresUSSurvey,  SqFeetUSSurvey, 43560, Const) \
    X(Fam, Lin,  eatBarns,            Barns,          SqM,        1e-28L, Exact) \
    X(Fam, Lin,  eatFootballCan,      FootballCan,    SqYards,    110 * 65, Custom) \
    X(Fam, Lin,  eatOlympicSoccer,    OlympicSoccer,  SqM,        105 * 68, Custom) \
    X(Fam, Lin,  eatFootballUS,       FootballUS,     SqFeet,     300 * 160, Custom) \
    X(Fam, Lin,  eatHomesteads,       Homesteads,     Acres,      160, Custom) \
    X(Fam, Lin,  eatPlanckAreas,      PlanckAreas,    SqM,        PlanckLength * PlanckLength, Const) \
    X(Fam, Lin,  eatPaperA3,          PaperA3,        SqMm,       297 * 420, Exact) \
    X(Fam, Lin,  eatPaperA4,          PaperA4,        SqMm,       210 * 297, Exact) \
    X(Fam, Lin,  eatPaperA5,          PaperA5,        SqMm,       148 * 210, Exact) \
    X(Fam, Lin,  eatPaperLegal,       PaperLegal,     SqInches,   8.5L * 14, Exact) \
    X(Fam, Lin,  eatPaperLetter,      PaperLetter,    SqInches,   8.5L * 11, Exact) \
    X(Fam, Lin,  eatPaperFoolscap,    PaperFoolscap,  SqInches,   8.5L * 13.5L, Custom) \
    X(Fam, LinD, eatMuArea1930,       Mu1930,         SqM,        10000 / 15.0L, Custom) \
    X(Fam, LinD, eatQingArea1930,     Qing1930,       Mu1930,     100, Custom)

// ---- Pressure: base pascals --------------------------------------------------------------------
// One pound-force per square inch: 0.45359237 kg * 9.80665 m/s2 / 0.0254^2 m2.
#define QORKIT_PSI_PASCALS (0.45359237L * 9.80665L / (0.0254L * 0.0254L))
#define QORKIT_UNITS_PRESSURE(X, Fam) \
    X(Fam, Base, eptPascals,                  Pascals,        Pascals,    1, Exact) \
    X(Fam, Lin,  eptHectopascals,             Hectopascals,   Pascals,    100, Exact) \
    X(Fam, Lin,  eptKilopascals,              Kilopascals,    Pascals,    1000, Exact) \
    X(Fam, Lin,  eptMegapascals,              Megapascals,    Pascals,    1e6L, Exact) \
    X(Fam, Lin,  eptBars,                     Bars,           Pascals,    1e5L, Exact) \
    X(Fam, Lin,  eptMillibars,                Millibars,      Pascals,    100, Exact) \
    X(Fam, Lin,  eptHectobars,                Hectobars,      Pascals,    1e7L, Exact) \
    X(Fam, Lin,  eptAtmospheres,              Atmospheres,    Pascals,    101325, Exact) \
    X(Fam, Lin,  eptMillimetresOfMercury0C,   MmHg,           Pascals,    133.322387415L, Nist) \
    X(Fam, Lin,  eptCentimetresOfMercury0C,   CmHg,           MmHg,       10, Nist) \
    X(Fam, Lin,  eptInchesOfMercury0C,        InHg,           MmHg,       25.4L, Nist) \
    X(Fam, Div,  eptTorrs,                    Torrs,          Atmospheres, 760, Exact) \
    X(Fam, Lin,  eptPoundsPerSqInch,          LbsPerSqInch,   Pascals,    QORKIT_PSI_PASCALS, Exact) \
    X(Fam, Lin,  eptPSI,                      PSI,            LbsPerSqInch, 1, Exact) \
    X(Fam, Div,  eptPoundsPerSqFoot,          LbsPerSqFoot,   LbsPerSqInch, 144, Exact) \
    X(Fam, Div,  eptPoundsPerSqYard,          LbsPerSqYard,   LbsPerSqInch, 1296, Exact) \
    X(Fam, Lin,  eptShortTonsPerSqFoot,       ShortTonsPerSqFoot, LbsPerSqFoot, 2000, Exact) \
    X(Fam, Lin,  eptShortTonsPerSqInch,       ShortTonsPerSqInch, LbsPerSqInch, 2000, Exact) \
    X(Fam, Lin,  eptTonsPerSqFoot,            TonsPerSqFoot,  LbsPerSqFoot, 2240, Exact) \
    X(Fam, Lin,  eptTonsPerSqInch,            TonsPerSqInch,  LbsPerSqInch, 2240, Exact) \
    X(Fam, Lin,  eptDynesPerSqCentimetre,     DynesPerSqCm,   Pascals,    0.1L, Exact) \
    X(Fam, Lin,  eptDynesPerSqMetre,          DynesPerSqM,    Pascals,    1e-5L, Exact) \
    X(Fam, Lin,  eptGramsPerSqCentimetre,     GPerSqCm,       Pascals,    98.0665L, Exact) \
    X(Fam, Lin,  eptGramsPerSqMetre,          GPerSqM,        Pascals,    0.00980665L, Exact) \
    X(Fam, Lin,  eptKilogramsPerSqCentimetre, KgPerSqCm,      Pascals,    98066.5L, Exact) \
    X(Fam, Lin,  eptKilogramsPerSqMetre,      KgPerSqM,       Pascals,    9.80665L, Exact) \
    X(Fam, Lin,  eptTonnesPerSqCentimetre,    TonnesPerSqCm,  KgPerSqCm,  1000, Exact) \
    X(Fam, Lin,  eptTonnesPerSqMetre,         TonnesPerSqM,   KgPerSqM,   1000, Exact) \
    X(Fam, Lin,  eptNewtonsPerSqMetre,        NewtonsPerSqM,  Pascals,    1, Exact) \
    X(Fam, Lin,  eptMillimetresOfWater4C,     MmWater,        Pascals,    9.80638L, Nist) \
    X(Fam, Lin,  eptCentimetresOfWater4C,     CmWater,        MmWater,    10, Nist) \
    X(Fam, Lin,  eptMetresOfWater4C,          MWater,         MmWater,    1000, Nist) \
    X(Fam, Lin,  eptFeetOfWater4C,            FtWater,        InWater,    12, Nist) \
    X(Fam, Lin,  eptFeetOfSeaWater,           FtSeaWater,     MSeaWater,  0.3048L, Custom) \
    X(Fam, Lin,  eptMetresOfSeaWater,         MSeaWater,      Pascals,    10000, Custom) \
    X(Fam, Lin,  eptInchesOfWater4C,          InWater,        MmWater,    25.4L, Nist) \
    X(Fam, Lin,  eptGigapascals,              Gigapascals,    Pascals,    1e9L, Exact) \
    X(Fam, Lin,  eptNanonewtonsPerSqMicron,   NanonewtonsPerSqMicron, Pascals, 1000, Exact) \
    X(Fam, Div,  eptOuncesPerSqFoot,          OzPerSqFoot,    LbsPerSqFoot, 16, Exact) \
    X(Fam, Div,  eptOuncesPerSqYard,          OzPerSqYard,    LbsPerSqYard, 16, Exact) \
    X(Fam, Lin,  eptBaryes,                   Baryes,         Pascals,    0.1L, Exact) \
    X(Fam, Lin,  eptAtmospheresTechnical,     TechAtmospheres, KgPerSqCm, 1, Exact) \
    X(Fam, Lin,  eptFeetOfAir0C,              FtAir0C,        Pascals,    1.2922L * 9.80665L * 0.3048L, Custom) \
    X(Fam, Lin,  eptFeetOfAir15C,             FtAir15C,       Pascals,    1.225L * 9.80665L * 0.3048L, Custom) \
    X(Fam, Lin,  eptFeetOfHead,               FtHead,         FtWater,    1, Nist) \
    X(Fam, Lin,  eptFeetOfMercury0C,          FtHg,           InHg,       12, Nist) \
    X(Fam, Lin,  eptMetresOfHead,             MHead,          MWater,     1, Nist) \
    X(Fam, Lin,  eptMillitorrs,               Millitorrs,     Torrs,      0.001L, Exact) \
    X(Fam, Lin,  eptMicronsPressure,          MicronsHg,      MmHg,       0.001L, Nist) \
    X(Fam, Lin,  eptMicrometresOfMercury0C,   MicrometresHg,  MmHg,       0.001L, Nist)

// ---- Velocity: base metres per second ----------------------------------------------------------
#define QORKIT_UNITS_VELOCITY(X, Fam) \
    X(Fam, Base, evtMetresPerSec,          MetresPS,    MetresPS,  1, Exact) \
    X(Fam, Div,  evtMetresPerMin,          MetresPM,    MetresPS,  60, Exact) \
    X(Fam, Div,  evtMetresPerHr,           MetresPH,    MetresPS,  3600, Exact) \
    X(Fam, Lin,  evtCentimetresPerSec,     CmPS,        MetresPS,  0.01L, Exact) \
    X(Fam, Div,  evtCentimetresPerMin,     CmPM,        CmPS,      60, Exact) \
    X(Fam, Div,  evtCentimetresPerHr,      CmPH,        CmPS,      3600, Exact) \
    X(Fam, Lin,  evtMillimetresPerSec,     MmPS,        MetresPS,  0.001L, Exact) \
    X(Fam, Div,  evtMillimetresPerMin,     MmPM,        MmPS,      60, Exact) \
    X(Fam, Div,  evtMillimetresPerHr,      MmPH,        MmPS,      3600, Exact) \
    X(Fam, Lin,  evtKilometresPerSec,      KmPS,        MetresPS,  1000, Exact) \
    X(Fam, Div,  evtKilometresPerMin,      KmPM,        KmPS,      60, Exact) \
    X(Fam, Div,  evtKilometresPerHr,       KmPH,        KmPS,      3600, Exact) \
    X(Fam, Lin,  evtKPH,                   KPH,         KmPH,      1, Exact) \
    X(Fam, Lin,  evtMilesPerSec,           MilesPS,     MetresPS,  1609.344L, Exact) \
    X(Fam, Div,  evtMilesPerMin,           MilesPM,     MilesPS,   60, Exact) \
    X(Fam, Div,  evtMilesPerHr,            MilesPH,     MilesPS,   3600, Exact) \
    X(Fam, Lin,  evtMPH,                   MPH,         MilesPH,   1, Exact) \
    X(Fam, Lin,  evtFeetPerSec,            FeetPS,      MetresPS,  0.3048L, Exact) \
    X(Fam, Div,  evtFeetPerMin,            FeetPM,      FeetPS,    60, Exact) \
    X(Fam, Div,  evtFeetPerHr,             FeetPH,      FeetPS,    3600, Exact) \
    X(Fam, Lin,  evtKnotsUK,               KnotsUK,     FeetPH,    6080, Custom) \
    X(Fam, Lin,  evtKnotsUS,               KnotsUS,     MetresPH,  1852, Exact) \
    X(Fam, Lin,  evtInchesPerSec,          InchesPS,    MetresPS,  0.0254L, Exact) \
    X(Fam, Div,  evtInchesPerMin,          InchesPM,    InchesPS,  60, Exact) \
    X(Fam, Div,  evtInchesPerHr,           InchesPH,    InchesPS,  3600, Exact) \
    X(Fam, Lin,  evtSpeedOfLight,          LightSpeed,  MetresPS,  SpeedOfLight, Const) \
    X(Fam, Lin,  evtSpeedOfSound,          SoundSpeed,  MetresPS,  MachOne, Const) \
    X(Fam, Lin,  evtMach,                  Mach,        MetresPS,  MachOne, Const) \
    X(Fam, Lin,  evtMicronsPerSec,         MicronsPS,   MetresPS,  1e-6L, Exact) \
    X(Fam, Lin,  evtMicronsPerMicrosecond, MicronsPUs,  MetresPS,  1, Exact) \
    X(Fam, Lin,  evtYardsPerSec,           YardsPS,     MetresPS,  0.9144L, Exact) \
    X(Fam, Div,  evtYardsPerMin,           YardsPM,     YardsPS,   60, Exact) \
    X(Fam, Div,  evtYardsPerHr,            YardsPH,     YardsPS,   3600, Exact) \
    X(Fam, Lin,  evtEscapeVelocity,        EscapeVelocity, KmPS,   11.186L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityLuna,    EscapeVelocityLuna, KmPS, 2.38L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityMars,    EscapeVelocityMars, KmPS, 5.027L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityVenus,   EscapeVelocityVenus, KmPS, 10.36L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityMercury, EscapeVelocityMercury, KmPS, 4.25L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityJupiter, EscapeVelocityJupiter, KmPS, 59.5L, Ref) \
    X(Fam, Lin,  evtEscapeVelocitySaturn,  EscapeVelocitySaturn, KmPS, 35.5L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityUranus,  EscapeVelocityUranus, KmPS, 21.3L, Ref) \
    X(Fam, Lin,  evtEscapeVelocityNeptune, EscapeVelocityNeptune, KmPS, 23.5L, Ref) \
    X(Fam, Lin,  evtEscapeVelocitySun,     EscapeVelocitySun, KmPS, 617.6L, Ref)

// ---- Acceleration: base metres per second squared; standard gravity 9.80665 -------------------
#define QORKIT_UNITS_ACCEL(X, Fam) \
    X(Fam, Base, eatMetresPerSec2,      MPS2,           MPS2,  1, Exact) \
    X(Fam, Lin,  eatCentimetresPerSec2, CmPS2,          MPS2,  0.01L, Exact) \
    X(Fam, Lin,  eatFeetPerSec2,        FPS2,           MPS2,  0.3048L, Exact) \
    X(Fam, Lin,  eatInchesPerSec2,      InPS2,          MPS2,  0.0254L, Exact) \
    X(Fam, Lin,  eatGravity,            Gravity,        MPS2,  9.80665L, Exact) \
    X(Fam, Lin,  eatMillimetresPerSec2, MmPS2,          MPS2,  0.001L, Exact) \
    X(Fam, Lin,  eatGalileos,           Galileos,       MPS2,  0.01L, Exact) \
    X(Fam, Lin,  eatMilligals,          Milligals,      Galileos, 0.001L, Exact) \
    X(Fam, Lin,  eatMicrogals,          Microgals,      Galileos, 1e-6L, Exact) \
    X(Fam, Lin,  eatYardsPerSec2,       YdPS2,          MPS2,  0.9144L, Exact) \
    X(Fam, Lin,  eatGravityLuna,        GravityLuna,    MPS2,  1.62L, Ref) \
    X(Fam, Lin,  eatGravityMars,        GravityMars,    MPS2,  3.71L, Ref) \
    X(Fam, Lin,  eatGravityVenus,       GravityVenus,   MPS2,  8.87L, Ref) \
    X(Fam, Lin,  eatGravityMercury,     GravityMercury, MPS2,  3.7L, Ref) \
    X(Fam, Lin,  eatGravityJupiter,     GravityJupiter, MPS2,  24.79L, Ref) \
    X(Fam, Lin,  eatGravitySaturn,      GravitySaturn,  MPS2,  10.44L, Ref) \
    X(Fam, Lin,  eatGravityUranus,      GravityUranus,  MPS2,  8.87L, Ref) \
    X(Fam, Lin,  eatGravityNeptune,     GravityNeptune, MPS2,  11.15L, Ref) \
    X(Fam, Lin,  eatGravitySun,         GravitySun,     MPS2,  274.0L, Ref)

// ---- Force: base newtons; the gravitational units through their masses ------------------------
#define QORKIT_UNITS_FORCE(X, Fam) \
    X(Fam, Base, eftNewtons,             Newtons,          Newtons, 1, Exact) \
    X(Fam, Lin,  eftMillinewtons,        Millinewtons,     Newtons, 0.001L, Exact) \
    X(Fam, Lin,  eftKilonewtons,         Kilonewtons,      Newtons, 1000, Exact) \
    X(Fam, Lin,  eftMeganewtons,         Meganewtons,      Newtons, 1e6L, Exact) \
    X(Fam, Lin,  eftGiganewtons,         Giganewtons,      Newtons, 1e9L, Exact) \
    X(Fam, Div,  eftDynes,               Dynes,            Newtons, 100000, Exact) \
    X(Fam, Lin,  eftKilogramsForce,      Kg,               Newtons, 9.80665L, Exact) \
    X(Fam, Lin,  eftGramsForce,          Grams,            Kg,      0.001L, Exact) \
    X(Fam, Lin,  eftPoundsForce,         Lbs,              Kg,      0.45359237L, Exact) \
    X(Fam, Div,  eftOuncesForce,         Ounces,           Lbs,     16, Exact) \
    X(Fam, Div,  eftPoundals,            Poundals,         Lbs,     9.80665L / 0.3048L, Exact) \
    X(Fam, Lin,  eftTonnesForce,         Tonnes,           Kg,      1000, Exact) \
    X(Fam, Lin,  eftTonsForce,           Tons,             Lbs,     2240, Exact) \
    X(Fam, Lin,  eftShortTonsForce,      ShortTons,        Lbs,     2000, Exact) \
    X(Fam, Lin,  eftJoulesPerMetre,      JoulesPerMetre,   Newtons, 1, Exact) \
    X(Fam, Lin,  eftNanonewtons,         Nanonewtons,      Newtons, 1e-9L, Exact) \
    X(Fam, Lin,  eftKiloponds,           Kiloponds,        Kg,      1, Exact) \
    X(Fam, Lin,  eftCrinals,             Crinals,          Newtons, 0.1L, Custom) \
    X(Fam, Lin,  eftKipsForce,           Kips,             Lbs,     1000, Exact) \
    X(Fam, Lin,  eftKilopoundsForce,     Kilopounds,       Lbs,     1000, Exact) \
    X(Fam, Lin,  eftAUForce,             AtomicUnits,      Newtons, 8.2387234983e-8L, Ref) \
    X(Fam, Lin,  eftFunals,              Funals,           Newtons, 1000, Custom) \
    X(Fam, Lin,  eftSthenes,             Sthenes,          Newtons, 1000, Custom) \
    X(Fam, Lin,  eftMicronewtons,        Micronewtons,     Newtons, 1e-6L, Exact) \
    X(Fam, Lin,  eftPiconewtons,         Piconewtons,      Newtons, 1e-12L, Exact) \
    X(Fam, Lin,  eftPonds,               Ponds,            Kg,      0.001L, Exact) \
    X(Fam, Lin,  eftJoulesPerCentimetre, JoulesPerCm,      Newtons, 100, Exact) \
    X(Fam, Lin,  eftJoulesPerKilometre,  JoulesPerKm,      Newtons, 0.001L, Exact) \
    X(Fam, Lin,  eftTeranewtons,         Teranewtons,      Newtons, 1e12L, Exact)

#define QORKIT_PAIRS_FORCE(X, Fam) \
    X(Fam, Lbs, Newtons, eftPoundsForce, eftNewtons)

// ---- Energy: base joules -----------------------------------------------------------------------
// One foot-pound-force: 0.3048 m * 0.45359237 kg * 9.80665 m/s2.
#define QORKIT_FOOT_POUND_JOULES (0.3048L * 0.45359237L * 9.80665L)
// One mechanical horsepower: 550 foot-pounds-force per second.
#define QORKIT_HORSEPOWER_WATTS (550 * QORKIT_FOOT_POUND_JOULES)
#define QORKIT_UNITS_ENERGY(X, Fam) \
    X(Fam, Base, eetJoules,                  Joules,        Joules,     1, Exact) \
    X(Fam, Lin,  eetMillijoules,             Millijoules,   Joules,     0.001L, Exact) \
    X(Fam, Lin,  eetMicrojoules,             Microjoules,   Joules,     1e-6L, Exact) \
    X(Fam, Lin,  eetNanojoules,              Nanojoules,    Joules,     1e-9L, Exact) \
    X(Fam, Lin,  eetKilojoules,              Kilojoules,    Joules,     1000, Exact) \
    X(Fam, Lin,  eetMegajoules,              Megajoules,    Joules,     1e6L, Exact) \
    X(Fam, Lin,  eetGigajoules,              Gigajoules,    Joules,     1e9L, Exact) \
    X(Fam, Lin,  eetErgs,                    Ergs,          Joules,     1e-7L, Exact) \
    X(Fam, Lin,  eetCaloriesIT,              CalIT,         Joules,     OneCalorie, Const) \
    X(Fam, Lin,  eetCaloriesTh,              CalTh,         Joules,     4.184L, Exact) \
    X(Fam, Lin,  eetCaloriesMean,            CalMean,       Joules,     4.19002L, Nist) \
    X(Fam, Lin,  eetCalories15C,             Cal15C,        Joules,     4.18580L, Nist) \
    X(Fam, Lin,  eetCalories20C,             Cal20C,        Joules,     4.18190L, Nist) \
    X(Fam, Lin,  eetKilocaloriesIT,          KcalIT,        CalIT,      1000, Const) \
    X(Fam, Lin,  eetKilocaloriesTh,          KcalTh,        CalTh,      1000, Exact) \
    X(Fam, Lin,  eetKilocaloriesMean,        KcalMean,      CalMean,    1000, Nist) \
    X(Fam, Lin,  eetKilocalories15C,         Kcal15C,       Cal15C,     1000, Nist) \
    X(Fam, Lin,  eetKilocalories20C,         Kcal20C,       Cal20C,     1000, Nist) \
    X(Fam, Lin,  eetBritishThermalUnitsIT,   BTUIT,         Joules,     1055.05585262L, Nist) \
    X(Fam, Lin,  eetBritishThermalUnitsTh,   BTUTh,         Joules,     1054.350L, Nist) \
    X(Fam, Lin,  eetBritishThermalUnitsMean, BTUMean,       Joules,     1055.87L, Nist) \
    X(Fam, Lin,  eetBritishThermalUnits39F,  BTU39F,        Joules,     1059.67L, Nist) \
    X(Fam, Lin,  eetBritishThermalUnits59F,  BTU59F,        Joules,     1054.804L, Nist) \
    X(Fam, Lin,  eetBritishThermalUnits60F,  BTU60F,        Joules,     1054.68L, Nist) \
    X(Fam, Lin,  eetThermsIT,                ThermsIT,      BTUIT,      100000, Nist) \
    X(Fam, Lin,  eetThermsTh,                ThermsTh,      BTUTh,      100000, Nist) \
    X(Fam, Lin,  eetThermsMean,              ThermsMean,    BTUMean,    100000, Nist) \
    X(Fam, Lin,  eetTherms39F,               Therms39F,     BTU39F,     100000, Nist) \
    X(Fam, Lin,  eetTherms59F,               Therms59F,     BTU59F,     100000, Nist) \
    X(Fam, Lin,  eetTherms60F,               Therms60F,     BTU60F,     100000, Nist) \
    X(Fam, Lin,  eetThermies,                Thermies,      Cal15C,     1e6L, Nist) \
    X(Fam, Same, eetNewtonMetres,            NewtonMetres,  Joules,     1, Exact) \
    X(Fam, Lin,  eetFootPounds,              FootPounds,    Joules,     QORKIT_FOOT_POUND_JOULES, Exact) \
    X(Fam, Lin,  eetFootPoundals,            FootPoundals,  Joules,     0.3048L * 0.3048L * 0.45359237L, Exact) \
    X(Fam, Lin,  eetKilogramMetres,          KgMetres,      Joules,     9.80665L, Exact) \
    X(Fam, Lin,  eetWattSeconds,             WattSeconds,   Joules,     1, Exact) \
    X(Fam, Lin,  eetWattMinutes,             WattMinutes,   Joules,     60, Exact) \
    X(Fam, Lin,  eetWattHours,               WattHours,     Joules,     3600, Exact) \
    X(Fam, Lin,  eetWattYears,               WattYears,     Joules,     365.25L * 86400, Custom) \
    X(Fam, Lin,  eetKilowattSeconds,         KilowattSeconds, Joules,   1000, Exact) \
    X(Fam, Lin,  eetKilowattMinutes,         KilowattMinutes, Joules,   60000, Exact) \
    X(Fam, Lin,  eetKilowattHours,           KilowattHours, Joules,     3.6e6L, Exact) \
    X(Fam, Lin,  eetElectronVolts,           eVs,           Joules,     ElemCharge, Const) \
    X(Fam, Lin,  eetKiloElectronVolts,       KeVs,          eVs,        1000, Const) \
    X(Fam, Lin,  eetMegaElectronVolts,       MeVs,          eVs,        1e6L, Const) \
    X(Fam, Lin,  eetGigaElectronVolts,       GeVs,          eVs,        1e9L, Const) \
    X(Fam, Lin,  eetHorsepowerSeconds,       HorsepowerSeconds, Joules, QORKIT_HORSEPOWER_WATTS, Exact) \
    X(Fam, Lin,  eetHorsepowerMinutes,       HorsepowerMinutes, HorsepowerSeconds, 60, Exact) \
    X(Fam, Lin,  eetHorsepowerHours,         HorsepowerHours, HorsepowerSeconds, 3600, Exact) \
    X(Fam, Lin,  eetTerajoules,              Terajoules,    Joules,     1e12L, Exact)

// ---- Power: base watts -------------------------------------------------------------------------
#define QORKIT_UNITS_POWER(X, Fam) \
    X(Fam, Base, eptWatts,                   Watts,           Watts,        1, Exact) \
    X(Fam, Lin,  eptKilowatts,               Kilowatts,       Watts,        1000, Exact) \
    X(Fam, Lin,  eptMegawatts,               Megawatts,       Watts,        1e6L, Exact) \
    X(Fam, Lin,  eptGigawatts,               Gigawatts,       Watts,        1e9L, Exact) \
    X(Fam, Lin,  eptMilliwatts,              Milliwatts,      Watts,        0.001L, Exact) \
    X(Fam, Lin,  eptMicrowatts,              Microwatts,      Watts,        1e-6L, Exact) \
    X(Fam, Lin,  eptAbwatts,                 Abwatts,         Watts,        1e-7L, Exact) \
    X(Fam, Lin,  eptHorsepower,              Horsepower,      Watts,        QORKIT_HORSEPOWER_WATTS, Exact) \
    X(Fam, Lin,  eptHorsepowerMetric,        MetricHorsepower, Watts,       75 * 9.80665L, Exact) \
    X(Fam, Lin,  eptFootPoundsPerSecond,     FootPoundsPS,    Watts,        QORKIT_FOOT_POUND_JOULES, Exact) \
    X(Fam, Lin,  eptKilogramMetresPerSecond, KgMetresPS,      Watts,        9.80665L, Exact) \
    X(Fam, Lin,  eptJoulesPerSecond,         JoulesPS,        Watts,        1, Exact) \
    X(Fam, Div,  eptJoulesPerMinute,         JoulesPM,        Watts,        60, Exact) \
    X(Fam, Div,  eptJoulesPerHour,           JoulesPH,        Watts,        3600, Exact) \
    X(Fam, Lin,  eptCaloriesITPerSecond,     CalITPS,         Watts,        OneCalorie, Const) \
    X(Fam, Div,  eptCaloriesITPerMinute,     CalITPM,         CalITPS,      60, Const) \
    X(Fam, Div,  eptCaloriesITPerHour,       CalITPH,         CalITPS,      3600, Const) \
    X(Fam, Lin,  eptCaloriesThPerSecond,     CalThPS,         Watts,        4.184L, Exact) \
    X(Fam, Div,  eptCaloriesThPerMinute,     CalThPM,         CalThPS,      60, Exact) \
    X(Fam, Div,  eptCaloriesThPerHour,       CalThPH,         CalThPS,      3600, Exact) \
    X(Fam, Lin,  eptKilocaloriesITPerSecond, KcalITPS,        CalITPS,      1000, Const) \
    X(Fam, Div,  eptKilocaloriesITPerMinute, KcalITPM,        KcalITPS,     60, Const) \
    X(Fam, Div,  eptKilocaloriesITPerHour,   KcalITPH,        KcalITPS,     3600, Const) \
    X(Fam, Lin,  eptKilocaloriesThPerSecond, KcalThPS,        CalThPS,      1000, Exact) \
    X(Fam, Div,  eptKilocaloriesThPerMinute, KcalThPM,        KcalThPS,     60, Exact) \
    X(Fam, Div,  eptKilocaloriesThPerHour,   KcalThPH,        KcalThPS,     3600, Exact) \
    X(Fam, Lin,  eptPferdestarke,            Pferdestarke,    MetricHorsepower, 1, Exact) \
    X(Fam, Lin,  eptChevalVapeur,            ChevalVapeur,    MetricHorsepower, 1, Exact) \
    X(Fam, Lin,  eptRefTons,                 RefTons,         BTUITPH,      12000, Nist) \
    X(Fam, Lin,  eptBTUsITPerSecond,         BTUITPS,         Watts,        1055.05585262L, Nist) \
    X(Fam, Div,  eptBTUsITPerMinute,         BTUITPM,         BTUITPS,      60, Nist) \
    X(Fam, Div,  eptBTUsITPerHour,           BTUITPH,         BTUITPS,      3600, Nist) \
    X(Fam, Lin,  eptBTUsThPerSecond,         BTUThPS,         Watts,        1054.350L, Nist) \
    X(Fam, Div,  eptBTUsThPerMinute,         BTUThPM,         BTUThPS,      60, Nist) \
    X(Fam, Div,  eptBTUsThPerHour,           BTUThPH,         BTUThPS,      3600, Nist) \
    X(Fam, Lin,  eptBTUsMeanPerSecond,       BTUMeanPS,       Watts,        1055.87L, Nist) \
    X(Fam, Div,  eptBTUsMeanPerMinute,       BTUMeanPM,       BTUMeanPS,    60, Nist) \
    X(Fam, Div,  eptBTUsMeanPerHour,         BTUMeanPH,       BTUMeanPS,    3600, Nist) \
    X(Fam, Lin,  eptBTUs39FPerSecond,        BTU39FPS,        Watts,        1059.67L, Nist) \
    X(Fam, Div,  eptBTUs39FPerMinute,        BTU39FPM,        BTU39FPS,     60, Nist) \
    X(Fam, Div,  eptBTUs39FPerHour,          BTU39FPH,        BTU39FPS,     3600, Nist) \
    X(Fam, Lin,  eptBTUs59FPerSecond,        BTU59FPS,        Watts,        1054.804L, Nist) \
    X(Fam, Div,  eptBTUs59FPerMinute,        BTU59FPM,        BTU59FPS,     60, Nist) \
    X(Fam, Div,  eptBTUs59FPerHour,          BTU59FPH,        BTU59FPS,     3600, Nist) \
    X(Fam, Lin,  eptBTUs60FPerSecond,        BTU60FPS,        Watts,        1054.68L, Nist) \
    X(Fam, Div,  eptBTUs60FPerMinute,        BTU60FPM,        BTU60FPS,     60, Nist) \
    X(Fam, Div,  eptBTUs60FPerHour,          BTU60FPH,        BTU60FPS,     3600, Nist) \
    X(Fam, Lin,  eptHorsepowerElectrical,    ElectricalHorsepower, Watts,   746, Exact) \
    X(Fam, Lin,  eptErgsPerSecond,           ErgsPS,          Watts,        1e-7L, Exact) \
    X(Fam, Lin,  eptNanowatts,               Nanowatts,       Watts,        1e-9L, Exact) \
    X(Fam, Lin,  eptTerawatts,               Terawatts,       Watts,        1e12L, Exact) \
    X(Fam, Lin,  eptPicowatts,               Picowatts,       Watts,        1e-12L, Exact)

// ---- Fuel consumption: base kilometres per litre; the per-distance units are reciprocal -------
#define QORKIT_UNITS_FUEL(X, Fam) \
    X(Fam, Base, eftKilometresPerLitre,        KPL,      KPL, 1, Exact) \
    X(Fam, Same, eftKPL,                       KPL,      KPL, 1, Exact) \
    X(Fam, Fn,   eftLitresPer100Kilometres,    LP100K,   KPL, 0, Exact) \
    X(Fam, Fn,   eftMilesPerLitre,             MPL,      KPL, 0, Exact) \
    X(Fam, Fn,   eftMilesPerGallonUK,          MPGUK,    KPL, 0, Exact) \
    X(Fam, Fn,   eftMilesPerGallonUS,          MPGUS,    KPL, 0, Exact) \
    X(Fam, Fn,   eftMPGUK,                     MPGUK,    KPL, 0, Exact) \
    X(Fam, Fn,   eftMPGUS,                     MPGUS,    KPL, 0, Exact) \
    X(Fam, Fn,   eftGallonsUKPer100Kilometres, GUKP100K, KPL, 0, Exact) \
    X(Fam, Fn,   eftGallonsUSPer100Kilometres, GUSP100K, KPL, 0, Exact) \
    X(Fam, Fn,   eftGallonsUKPer100Miles,      GUKP100M, KPL, 0, Exact) \
    X(Fam, Fn,   eftGallonsUSPer100Miles,      GUSP100M, KPL, 0, Exact) \
    X(Fam, Fn,   eftKilometresPerGallonUK,     KPGUK,    KPL, 0, Exact) \
    X(Fam, Fn,   eftKilometresPerGallonUS,     KPGUS,    KPL, 0, Exact) \
    X(Fam, Fn,   eftLitresPer100Miles,         LP100M,   KPL, 0, Exact)

// ---- Liquid flow: base litres per second -------------------------------------------------------
#define QORKIT_UNITS_FLOW(X, Fam) \
    X(Fam, Lin,  eftCubicMetresPerSecond,      CuMPS,     LPS,     1000, Exact) \
    X(Fam, Base, eftLitresPerSecond,           LPS,       LPS,     1, Exact) \
    X(Fam, Div,  eftLitresPerMinute,           LPM,       LPS,     60, Exact) \
    X(Fam, Div,  eftLitresPerHour,             LPH,       LPS,     3600, Exact) \
    X(Fam, Div,  eftLitresPerDay,              LPD,       LPS,     86400, Exact) \
    X(Fam, Lin,  eftMillilitresPerSecond,      MlPS,      LPS,     0.001L, Exact) \
    X(Fam, Div,  eftMillilitresPerMinute,      MlPM,      MlPS,    60, Exact) \
    X(Fam, Div,  eftMillilitresPerHour,        MlPH,      MlPS,    3600, Exact) \
    X(Fam, Lin,  eftKilolitresPerSecond,       KlPS,      LPS,     1000, Exact) \
    X(Fam, Div,  eftKilolitresPerMinute,       KlPM,      KlPS,    60, Exact) \
    X(Fam, Div,  eftKilolitresPerHour,         KlPH,      KlPS,    3600, Exact) \
    X(Fam, Div,  eftKilolitresPerDay,          KlPD,      KlPS,    86400, Exact) \
    X(Fam, Lin,  eftGallonsUKPerSecond,        GUKPS,     LPS,     8 * OnePint, Const) \
    X(Fam, Div,  eftGallonsUKPerMinute,        GUKPM,     GUKPS,   60, Const) \
    X(Fam, Div,  eftGallonsUKPerHour,          GUKPH,     GUKPS,   3600, Const) \
    X(Fam, Div,  eftGallonsUKPerDay,           GUKPD,     GUKPS,   86400, Const) \
    X(Fam, Lin,  eftGallonsUSPerSecond,        GUSPS,     LPS,     3.785411784L, Exact) \
    X(Fam, Div,  eftGallonsUSPerMinute,        GUSPM,     GUSPS,   60, Exact) \
    X(Fam, Div,  eftGallonsUSPerHour,          GUSPH,     GUSPS,   3600, Exact) \
    X(Fam, Div,  eftGallonsUSPerDay,           GUSPD,     GUSPS,   86400, Exact) \
    X(Fam, Div,  eftFluidOuncesUKPerSecond,    FlOzUKPS,  GUKPS,   160, Const) \
    X(Fam, Div,  eftFluidOuncesUKPerMinute,    FlOzUKPM,  FlOzUKPS, 60, Const) \
    X(Fam, Div,  eftFluidOuncesUKPerHour,      FlOzUKPH,  FlOzUKPS, 3600, Const) \
    X(Fam, Div,  eftFluidOuncesUSPerSecond,    FlOzUSPS,  GUSPS,   128, Exact) \
    X(Fam, Div,  eftFluidOuncesUSPerMinute,    FlOzUSPM,  FlOzUSPS, 60, Exact) \
    X(Fam, Div,  eftFluidOuncesUSPerHour,      FlOzUSPH,  FlOzUSPS, 3600, Exact) \
    X(Fam, Lin,  eftCubicCentimetresPerSecond, CcPS,      LPS,     0.001L, Exact) \
    X(Fam, Div,  eftCubicCentimetresPerMinute, CcPM,      CcPS,    60, Exact) \
    X(Fam, Div,  eftCubicCentimetresPerHour,   CcPH,      CcPS,    3600, Exact) \
    X(Fam, Lin,  eftCubicMillimetresPerSecond, CuMmPS,    LPS,     1e-6L, Exact) \
    X(Fam, Div,  eftCubicMillimetresPerMinute, CuMmPM,    CuMmPS,  60, Exact) \
    X(Fam, Div,  eftCubicMillimetresPerHour,   CuMmPH,    CuMmPS,  3600, Exact) \
    X(Fam, Div,  eftCubicMetresPerMinute,      CuMPM,     CuMPS,   60, Exact) \
    X(Fam, Div,  eftCubicMetresPerHour,        CuMPH,     CuMPS,   3600, Exact) \
    X(Fam, Div,  eftCubicMetresPerDay,         CuMPD,     CuMPS,   86400, Exact) \
    X(Fam, Lin,  eftCubicInchesPerSecond,      CuInPS,    LPS,     0.016387064L, Exact) \
    X(Fam, Div,  eftCubicInchesPerMinute,      CuInPM,    CuInPS,  60, Exact) \
    X(Fam, Div,  eftCubicInchesPerHour,        CuInPH,    CuInPS,  3600, Exact) \
    X(Fam, Lin,  eftCubicFeetPerSecond,        CuFtPS,    CuInPS,  1728, Exact) \
    X(Fam, Div,  eftCubicFeetPerMinute,        CuFtPM,    CuFtPS,  60, Exact) \
    X(Fam, Div,  eftCubicFeetPerHour,          CuFtPH,    CuFtPS,  3600, Exact) \
    X(Fam, Lin,  eftCubicYardsPerSecond,       CuYdPS,    CuFtPS,  27, Exact) \
    X(Fam, Div,  eftCubicYardsPerMinute,       CuYdPM,    CuYdPS,  60, Exact) \
    X(Fam, Div,  eftCubicYardsPerHour,         CuYdPH,    CuYdPS,  3600, Exact) \
    X(Fam, Lin,  eftMegaGallonsUKPerYear,      MGUKPY,    GUKPD,   1e6L / 365, Const) \
    X(Fam, Lin,  eftMegaGallonsUSPerYear,      MGUSPY,    GUSPD,   1e6L / 365, Exact) \
    X(Fam, Div,  eftAcreFeetPerYear,           AcreFeetPY, AcreFeetPD, 365, Exact) \
    X(Fam, Lin,  eftAcreFeetPerDay,            AcreFeetPD, CuFtPS, 43560.0L / 86400, Exact) \
    X(Fam, Div,  eftAcreInchesPerDay,          AcreInchesPD, AcreFeetPD, 12, Exact) \
    X(Fam, Lin,  eftBarrelsOilPerDay,          BarrelsOilPD, GUSPD, 42, Exact) \
    X(Fam, Lin,  eftCusec,                     Cusecs,    CuFtPS,  1, Exact)

// ---- Mass flow: base kilograms per second (routines of the Flow family) ------------------------
#define QORKIT_UNITS_FLOWMASS(X, Fam) \
    X(Fam, Base, eftKilogramsPerSecond, KgPS,     KgPS,     1, Exact) \
    X(Fam, Div,  eftKilogramsPerMinute, KgPM,     KgPS,     60, Exact) \
    X(Fam, Div,  eftKilogramsPerHour,   KgPH,     KgPS,     3600, Exact) \
    X(Fam, Lin,  eftGramsPerSecond,     GPS,      KgPS,     0.001L, Exact) \
    X(Fam, Div,  eftGramsPerMinute,     GPM,      GPS,      60, Exact) \
    X(Fam, Div,  eftGramsPerHour,       GPH,      GPS,      3600, Exact) \
    X(Fam, Lin,  eftPoundsPerSecond,    lbPS,     KgPS,     0.45359237L, Exact) \
    X(Fam, Div,  eftPoundsPerMinute,    lbPM,     lbPS,     60, Exact) \
    X(Fam, Div,  eftPoundsPerHour,      lbPH,     lbPS,     3600, Exact) \
    X(Fam, Div,  eftOuncesPerSecond,    OzPS,     lbPS,     16, Exact) \
    X(Fam, Div,  eftOuncesPerMinute,    OzPM,     OzPS,     60, Exact) \
    X(Fam, Div,  eftOuncesPerHour,      OzPH,     OzPS,     3600, Exact) \
    X(Fam, Lin,  eftSlugsPerSecond,     SlugsPS,  lbPS,     9.80665L / 0.3048L, Exact) \
    X(Fam, Div,  eftSlugsPerMinute,     SlugsPM,  SlugsPS,  60, Exact) \
    X(Fam, Div,  eftSlugsPerHour,       SlugsPH,  SlugsPS,  3600, Exact)

// ---- Torque: base newton metres; a force routine times a length --------------------------------
#define QORKIT_UNITS_TORQUE(X, Fam) \
    X(Fam, Base, ettNewtonMetres,      NewtonMetres,      NewtonMetres, 1, Exact) \
    X(Fam, Lin,  ettDyneCentimetres,   DyneCm,            NewtonMetres, 1e-7L, Exact) \
    X(Fam, Lin,  ettGramCentimetres,   GramCm,            KGMetres,     1e-5L, Exact) \
    X(Fam, Lin,  ettKilogramMetres,    KGMetres,          NewtonMetres, 9.80665L, Exact) \
    X(Fam, Div,  ettOunceInches,       OzInches,          LbInches,     16, Exact) \
    X(Fam, Div,  ettPoundInches,       LbInches,          LbFeet,       12, Exact) \
    X(Fam, Lin,  ettPoundFeet,         LbFeet,            NewtonMetres, QORKIT_FOOT_POUND_JOULES, Exact) \
    X(Fam, Lin,  ettPoundalFeet,       PoundalFeet,       NewtonMetres, 0.3048L * 0.3048L * 0.45359237L, Exact) \
    X(Fam, Lin,  ettTonFeet,           TonFeet,           LbFeet,       2240, Exact) \
    X(Fam, Lin,  ettShortTonFeet,      ShortTonFeet,      LbFeet,       2000, Exact) \
    X(Fam, Lin,  ettTonneMetres,       TonneMetres,       KGMetres,     1000, Exact) \
    X(Fam, Lin,  ettNewtonMicrons,     NewtonMicrons,     NewtonMetres, 1e-6L, Exact) \
    X(Fam, Lin,  ettNanonewtonMetres,  NanonewtonMetres,  NewtonMetres, 1e-9L, Exact) \
    X(Fam, Lin,  ettNanonewtonMicrons, NanonewtonMicrons, NewtonMetres, 1e-15L, Exact) \
    X(Fam, Lin,  ettNewtonCentimetres, NewtonCm,          NewtonMetres, 0.01L, Exact)

// ---- Radioactivity: base becquerels ------------------------------------------------------------
#define QORKIT_UNITS_RACTIVE(X, Fam) \
    X(Fam, Base, ertBecquerels,     Becquerels,     Becquerels, 1, Exact) \
    X(Fam, Lin,  ertKilobecquerels, Kilobecquerels, Becquerels, 1e3L, Exact) \
    X(Fam, Lin,  ertMegabecquerels, Megabecquerels, Becquerels, 1e6L, Exact) \
    X(Fam, Lin,  ertGigabecquerels, Gigabecquerels, Becquerels, 1e9L, Exact) \
    X(Fam, Lin,  ertCuries,         Curies,         Becquerels, 3.7e10L * OneBecquerel, Exact) \
    X(Fam, Lin,  ertMillicuries,    Millicuries,    Curies,     0.001L, Exact) \
    X(Fam, Lin,  ertMicrocuries,    Microcuries,    Curies,     1e-6L, Exact) \
    X(Fam, Lin,  ertRutherfords,    Rutherfords,    Becquerels, 1e6L, Exact)

// ---- Illumination: base lux --------------------------------------------------------------------
#define QORKIT_UNITS_ILLUMIN(X, Fam) \
    X(Fam, Base, eitLux,           Lux,            Lux,  1, Exact) \
    X(Fam, Lin,  eitLumensPerSqM,  LumensPerSqM,   Lux,  1, Exact) \
    X(Fam, Lin,  eitMetreCandles,  MetreCandles,   Lux,  1, Exact) \
    X(Fam, Div,  eitFootCandles,   FootCandles,    Lux,  0.09290304L, Exact) \
    X(Fam, Lin,  eitPhots,         Phots,          Lux,  1e4L, Exact) \
    X(Fam, Lin,  eitMilliPhots,    MilliPhots,     Lux,  10, Exact) \
    X(Fam, Lin,  eitNoonSun,       NoonSun,        Lux,  1e5L, Custom) \
    X(Fam, Lin,  eitLumensPerSqFt, LumensPerSqFt,  FootCandles, 1, Exact) \
    X(Fam, Lin,  eitNox,           Nox,            Lux,  0.001L, Exact) \
    X(Fam, Lin,  eitLumensPerSqCm, LumensPerSqCm,  Lux,  1e4L, Exact) \
    X(Fam, Lin,  eitMillilux,      Millilux,       Lux,  0.001L, Exact) \
    X(Fam, Lin,  eitKilolux,       Kilolux,        Lux,  1000, Exact)

// ---- Luminous intensity: base candelas ---------------------------------------------------------
#define QORKIT_UNITS_LUMINOUS(X, Fam) \
    X(Fam, Base, eltCandelas,           Candela,      Candela, 1, Exact) \
    X(Fam, Lin,  eltCandles,            Candles,      Candela, 1.019L, Custom) \
    X(Fam, Lin,  eltHefnerUnits,        HefnerUnits,  Candela, 0.903L, Custom) \
    X(Fam, Lin,  eltViolle,             Violle,       Candela, 20.17L, Custom) \
    X(Fam, Same, eltLumensPerSteradian, LumensPerSr,  Candela, 1, Exact) \
    X(Fam, Div,  eltBougies,            Bougies,      Violle,  20, Custom) \
    X(Fam, Lin,  eltCarcels,            Carcels,      Candela, 9.74L, Custom) \
    X(Fam, Lin,  eltKilocandelas,       Kilocandelas, Candela, 1000, Exact) \
    X(Fam, Lin,  eltMillicandelas,      Millicandelas, Candela, 0.001L, Exact)

// ---- Luminance: base candelas per square metre -------------------------------------------------
#define QORKIT_UNITS_LUMINANCE(X, Fam) \
    X(Fam, Base, eltCandelasPerSqM,  CDPerSqM,     CDPerSqM, 1, Exact) \
    X(Fam, Lin,  eltCandelasPerSqCm, CDPerSqCm,    CDPerSqM, 1e4L, Exact) \
    X(Fam, Div,  eltCandelasPerSqFt, CDPerSqFt,    CDPerSqM, 0.09290304L, Exact) \
    X(Fam, Lin,  eltLamberts,        Lamberts,     CDPerSqCm, 1 / QORPi, Exact) \
    X(Fam, Lin,  eltMillilamberts,   Millilamberts, Lamberts, 0.001L, Exact) \
    X(Fam, Lin,  eltFootLamberts,    FootLamberts, CDPerSqFt, 1 / QORPi, Exact) \
    X(Fam, Same, eltNits,            Nits,         CDPerSqM, 1, Exact) \
    X(Fam, Lin,  eltStilbs,          Stilbs,       CDPerSqCm, 1, Exact) \
    X(Fam, Lin,  eltApostilbs,       Apostilbs,    CDPerSqM, 1 / QORPi, Exact)

// ---- Luminous flux: base lumens ----------------------------------------------------------------
#define QORKIT_UNITS_LUMFLUX(X, Fam) \
    X(Fam, Base, eltLumens,               Lumens,        Lumens, 1, Exact) \
    X(Fam, Lin,  eltMillilumens,          Millilumens,   Lumens, 0.001L, Exact) \
    X(Fam, Lin,  eltKilolumens,           Kilolumens,    Lumens, 1000, Exact) \
    X(Fam, Lin,  eltCandelaSteradians,    CandelaSr,     Lumens, 1, Exact) \
    X(Fam, Lin,  eltCandlepowerSpherical, CandlepowerSpherical, Lumens, 2 * TwoPi, Exact)

// ---- Angular velocity and acceleration: base radians per second (squared) ----------------------
#define QORKIT_UNITS_ANGVEL(X, Fam) \
    X(Fam, Base, eatRadiansPerSec,         RadPerSec, RadPerSec, 1, Exact) \
    X(Fam, Div,  eatRadiansPerMin,         RadPerMin, RadPerSec, 60, Exact) \
    X(Fam, Div,  eatRadiansPerHr,          RadPerHr,  RadPerSec, 3600, Exact) \
    X(Fam, Lin,  eatDegreesPerSec,         DegPerSec, RadPerSec, OneDegree, Const) \
    X(Fam, Div,  eatDegreesPerMin,         DegPerMin, DegPerSec, 60, Const) \
    X(Fam, Div,  eatDegreesPerHr,          DegPerHr,  DegPerSec, 3600, Const) \
    X(Fam, Lin,  eatRevPerSec,             RevPerSec, RadPerSec, TwoPi, Const) \
    X(Fam, Div,  eatRevPerMin,             RevPerMin, RevPerSec, 60, Const) \
    X(Fam, Div,  eatRevPerHr,              RevPerHr,  RevPerSec, 3600, Const) \
    X(Fam, Lin,  eatRPM,                   RPM,       RevPerMin, 1, Const) \
    X(Fam, Lin,  eatRadiansPerMillisecond, RadPerMs,  RadPerSec, 1000, Exact) \
    X(Fam, Lin,  eatRadiansPerMicrosecond, RadPerUs,  RadPerSec, 1e6L, Exact) \
    X(Fam, Lin,  eatDegreesPerMillisecond, DegPerMs,  DegPerSec, 1000, Const) \
    X(Fam, Lin,  eatDegreesPerMicrosecond, DegPerUs,  DegPerSec, 1e6L, Const)

#define QORKIT_UNITS_ANGACCEL(X, Fam) \
    X(Fam, Base, eatRadiansPerSec2, RadPerSec2, RadPerSec2, 1, Exact) \
    X(Fam, Lin,  eatDegreesPerSec2, DegPerSec2, RadPerSec2, OneDegree, Const) \
    X(Fam, Lin,  eatRevPerSec2,     RevPerSec2, RadPerSec2, TwoPi, Const) \
    X(Fam, Div,  eatRPMPerSec,      RPMPerSec,  RevPerSec2, 60, Const)

// ---- Density: base kilograms per cubic metre ---------------------------------------------------
#define QORKIT_UNITS_DENSITY(X, Fam) \
    X(Fam, Base, edtKgPerCuM,               KgPerCuM,       KgPerCuM,  1, Exact) \
    X(Fam, Lin,  edtKgPerCuCm,              KgPerCuCm,      KgPerCuM,  1e6L, Exact) \
    X(Fam, Lin,  edtGPerCuM,                GPerCuM,        KgPerCuM,  0.001L, Exact) \
    X(Fam, Lin,  edtGPerCuCm,               GPerCuCm,       KgPerCuM,  1000, Exact) \
    X(Fam, Lin,  edtLbsPerCuFt,             LbsPerCuFt,     KgPerCuM,  0.45359237L / 0.028316846592L, Exact) \
    X(Fam, Lin,  edtLbsPerCuIn,             LbsPerCuIn,     LbsPerCuFt, 1728, Exact) \
    X(Fam, Div,  edtOzsPerCuFt,             OzsPerCuFt,     LbsPerCuFt, 16, Exact) \
    X(Fam, Div,  edtOzsPerCuIn,             OzsPerCuIn,     LbsPerCuIn, 16, Exact) \
    X(Fam, Lin,  edtPgPerCuMicron,          PgPerCuMicron,  KgPerCuM,  1000, Exact) \
    X(Fam, Lin,  edtppm,                    ppm,            KgPerCuM,  0.001L, Custom) \
    X(Fam, Lin,  edtKilogramsPerLitre,      KgPerL,         KgPerCuM,  1000, Exact) \
    X(Fam, Lin,  edtGramsPerLitre,          GPerL,          KgPerCuM,  1, Exact) \
    X(Fam, Lin,  edtMilligramsPerLitre,     MgPerL,         KgPerCuM,  0.001L, Exact) \
    X(Fam, Lin,  edtMilligramsPerDecilitre, MgPerDl,        KgPerCuM,  0.01L, Exact) \
    X(Fam, Lin,  edtPlasmaticGlucose,       PlasmaticGlucose, KgPerCuM, 0.180156L, Custom) \
    X(Fam, Lin,  edtPoundsPerUSGallon,      LbsPerUSGal,    KgPerCuM,  0.45359237L / 0.003785411784L, Exact) \
    X(Fam, Lin,  edtPoundsPerUKGallon,      LbsPerUKGal,    KgPerCuM,  0.45359237L / (0.008L * OnePint), Const) \
    X(Fam, Div,  edtOuncesPerUSGallon,      OzPerUSGal,     LbsPerUSGal, 16, Exact) \
    X(Fam, Div,  edtOuncesPerUKGallon,      OzPerUKGal,     LbsPerUKGal, 16, Const) \
    X(Fam, Lin,  edtEarthDensities,         EarthDensities, KgPerCuM,  5514, Ref) \
    X(Fam, Lin,  edtLunaDensities,          LunaDensities,  KgPerCuM,  3344, Ref) \
    X(Fam, Lin,  edtMarsDensities,          MarsDensities,  KgPerCuM,  3934, Ref) \
    X(Fam, Lin,  edtVenusDensities,         VenusDensities, KgPerCuM,  5243, Ref) \
    X(Fam, Lin,  edtMercuryDensities,       MercuryDensities, KgPerCuM, 5429, Ref) \
    X(Fam, Lin,  edtJupiterDensities,       JupiterDensities, KgPerCuM, 1326, Ref) \
    X(Fam, Lin,  edtSaturnDensities,        SaturnDensities, KgPerCuM, 687, Ref) \
    X(Fam, Lin,  edtUranusDensities,        UranusDensities, KgPerCuM, 1270, Ref) \
    X(Fam, Lin,  edtNeptuneDensities,       NeptuneDensities, KgPerCuM, 1638, Ref) \
    X(Fam, Lin,  edtSolarDensities,         SolarDensities, KgPerCuM,  1408, Ref)

// ---- Viscosity: base pascal seconds (dynamic), square metres per second (kinematic) -----------
#define QORKIT_UNITS_VISDYN(X, Fam) \
    X(Fam, Base, evdtPascalSecs,       PasSecs,         PasSecs, 1, Exact) \
    X(Fam, Lin,  evdtPoise,            Poise,           PasSecs, 0.1L, Exact) \
    X(Fam, Lin,  evdtCentipoise,       Centipoise,      Poise,   0.01L, Exact) \
    X(Fam, Lin,  evdtPoiseuille,       Poiseuille,      PasSecs, 1, Exact) \
    X(Fam, Lin,  evdtReynolds,         Reynolds,        PasSecs, QORKIT_PSI_PASCALS, Exact) \
    X(Fam, Div,  evdtLbSecsPerSqFt,    LbSecsPerSqFt,   Reynolds, 144, Exact) \
    X(Fam, Lin,  evdtLbSecsPerSqInch,  LbSecsPerSqInch, Reynolds, 1, Exact) \
    X(Fam, Lin,  evdtPSISecs,          PSISecs,         Reynolds, 1, Exact) \
    X(Fam, Lin,  evdtDyneSecsPerSqCm,  DyneSecsPerSqCm, PasSecs, 0.1L, Exact) \
    X(Fam, Lin,  evdtGSecsPerSqCM,     GSecsPerSqCm,    PasSecs, 98.0665L, Exact) \
    X(Fam, Lin,  evdtKGSecsPerSqM,     KgSecsPerSqM,    PasSecs, 9.80665L, Exact)

#define QORKIT_UNITS_VISKIN(X, Fam) \
    X(Fam, Base, evktSqMPerSec,   SqMPerSec,   SqMPerSec, 1, Exact) \
    X(Fam, Lin,  evktStokes,      Stokes,      SqMPerSec, 1e-4L, Exact) \
    X(Fam, Lin,  evktCentiStokes, CentiStokes, Stokes,    0.01L, Exact) \
    X(Fam, Lin,  evktSqFtPerSec,  SqFtPerSec,  SqMPerSec, 0.09290304L, Exact) \
    X(Fam, Lin,  evktSqCmPerSec,  SqCmPerSec,  SqMPerSec, 1e-4L, Exact)

// ---- Electric charge and current: base coulombs, amperes ---------------------------------------
// The electrostatic units: one statcoulomb is 1 / (10 c) coulomb, c in centimetres per second.
#define QORKIT_UNITS_ELCHARGE(X, Fam) \
    X(Fam, Base, eelcCoulombs,              C,                 C, 1, Exact) \
    X(Fam, Lin,  eelcAbcoulombs,            Abcoulombs,        C, 10, Exact) \
    X(Fam, Div,  eelcStatcoulombs,          Statcoulombs,      C, 10 * SpeedOfLight, Const) \
    X(Fam, Lin,  eelcKilocoulombs,          Kilocoulombs,      C, 1000, Exact) \
    X(Fam, Lin,  eelcMegacoulombs,          Megacoulombs,      C, 1e6L, Exact) \
    X(Fam, Lin,  eelcMillicoulombs,         Millicoulombs,     C, 0.001L, Exact) \
    X(Fam, Lin,  eelcMicrocoulombs,         Microcoulombs,     C, 1e-6L, Exact) \
    X(Fam, Lin,  eelcAmpSeconds,            AmpSeconds,        C, 1, Exact) \
    X(Fam, Lin,  eelcAmpMinutes,            AmpMinutes,        C, 60, Exact) \
    X(Fam, Lin,  eelcAmpHours,              AmpHours,          C, 3600, Exact) \
    X(Fam, Lin,  eelcMilliampHours,         MilliampHours,     C, 3.6L, Exact) \
    X(Fam, Lin,  eelcMilliampSeconds,       MilliampSeconds,   C, 0.001L, Exact) \
    X(Fam, Lin,  eelcElementaryCharges,     ElementaryCharges, C, ElemCharge, Const) \
    X(Fam, Lin,  eelcFaradays,              Faradays,          C, Avogadro * ElemCharge, Const) \
    X(Fam, Lin,  eelcFranklins,             Franklins,         Statcoulombs, 1, Const) \
    X(Fam, Lin,  eelcFaradVolts,            FaradVolts,        C, 1, Exact) \
    X(Fam, Lin,  eelcESU,                   ESU,               Statcoulombs, 1, Const) \
    X(Fam, Lin,  eelcEMU,                   EMU,               Abcoulombs, 1, Exact) \
    X(Fam, Lin,  eelcGigacoulombs,          Gigacoulombs,      C, 1e9L, Exact) \
    X(Fam, Lin,  eelcNanocoulombs,          Nanocoulombs,      C, 1e-9L, Exact) \
    X(Fam, Lin,  eelcCoulombsInternational, CoulombsInt,       C, 0.99985L, Custom)

#define QORKIT_UNITS_CURRENT(X, Fam) \
    X(Fam, Base, ecAmps,              Amps,          Amps, 1, Exact) \
    X(Fam, Lin,  ecAbamps,            Abamps,        Amps, 10, Exact) \
    X(Fam, Div,  ecStatamps,          Statamps,      Amps, 10 * SpeedOfLight, Const) \
    X(Fam, Lin,  ecKiloamps,          Kiloamps,      Amps, 1000, Exact) \
    X(Fam, Lin,  ecMegaamps,          Megaamps,      Amps, 1e6L, Exact) \
    X(Fam, Lin,  ecMilliamps,         Milliamps,     Amps, 0.001L, Exact) \
    X(Fam, Lin,  ecMicroamps,         Microamps,     Amps, 1e-6L, Exact) \
    X(Fam, Lin,  ecCoulombsPerSecond, CoulombsPS,    Amps, 1, Exact) \
    X(Fam, Div,  ecCoulombsperMinute, CoulombsPM,    Amps, 60, Exact) \
    X(Fam, Div,  ecCoulombsperHour,   CoulombsPH,    Amps, 3600, Exact) \
    X(Fam, Lin,  ecBiot,              Biots,         Amps, 10, Exact) \
    X(Fam, Lin,  ecEMU,               EMU,           Abamps, 1, Exact) \
    X(Fam, Lin,  ecESU,               ESU,           Statamps, 1, Const) \
    X(Fam, Lin,  ecNanoamps,          Nanoamps,      Amps, 1e-9L, Exact) \
    X(Fam, Lin,  ecGilberts,          Gilberts,      Amps, 10 / (2 * TwoPi), Exact) \
    X(Fam, Lin,  ecGigaamps,          Gigaamps,      Amps, 1e9L, Exact) \
    X(Fam, Lin,  ecAmpsInternational, AmpsInt,       Amps, 0.99985L, Custom)

// ---- Magnetic flux and flux density: base webers, teslas ---------------------------------------
#define QORKIT_UNITS_MAGFLUX(X, Fam) \
    X(Fam, Base, emWebers,       Weber,       Weber, 1, Exact) \
    X(Fam, Lin,  emMaxwells,     Maxwells,    Weber, 1e-8L, Exact) \
    X(Fam, Lin,  emMilliwebers,  Milliwebers, Weber, 0.001L, Exact) \
    X(Fam, Lin,  emMicrowebers,  Microwebers, Weber, 1e-6L, Exact) \
    X(Fam, Lin,  emLines,        Lines,       Maxwells, 1, Exact) \
    X(Fam, Lin,  emKilolines,    Kilolines,   Lines, 1000, Exact) \
    X(Fam, Lin,  emMegalines,    Megalines,   Lines, 1e6L, Exact) \
    X(Fam, Lin,  emJoulesPerAmp, JoulesPerAmp, Weber, 1, Exact) \
    X(Fam, Lin,  emVoltSeconds,  VoltSeconds, Weber, 1, Exact)

#define QORKIT_UNITS_MAGFLUXDENS(X, Fam) \
    X(Fam, Base, emTeslas,          Tesla,          Tesla, 1, Exact) \
    X(Fam, Lin,  emGauss,           Gauss,          Tesla, 1e-4L, Exact) \
    X(Fam, Lin,  emMilliteslas,     Milliteslas,    Tesla, 0.001L, Exact) \
    X(Fam, Lin,  emMicroteslas,     Microteslas,    Tesla, 1e-6L, Exact) \
    X(Fam, Lin,  emNanoteslas,      Nanoteslas,     Tesla, 1e-9L, Exact) \
    X(Fam, Lin,  emGammas,          Gammas,         Tesla, 1e-9L, Exact) \
    X(Fam, Same, emWebersPerSqM,    WebersPerSqM,   Tesla, 1, Exact) \
    X(Fam, Lin,  emWebersPerSqCm,   WebersPerSqCm,  Tesla, 1e4L, Exact) \
    X(Fam, Div,  emMaxwellsPerSqIn, MaxwellsPerSqIn, Tesla, 64516, Exact) \
    X(Fam, Lin,  emLinesPerSqIn,    LinesPerSqIn,   MaxwellsPerSqIn, 1, Exact)

// ---- Radiation dose and absorption: base sieverts, grays ---------------------------------------
#define QORKIT_UNITS_RADDOSE(X, Fam) \
    X(Fam, Base, erdSieverts,      Sieverts,      Sieverts, 1, Exact) \
    X(Fam, Lin,  erdMillisieverts, Millisieverts, Sieverts, 0.001L, Exact) \
    X(Fam, Lin,  erdMicrosieverts, Microsieverts, Sieverts, 1e-6L, Exact) \
    X(Fam, Lin,  erdRems,          Rems,          Sieverts, 0.01L, Exact) \
    X(Fam, Lin,  erdMillirems,     Millirems,     Rems,     0.001L, Exact) \
    X(Fam, Lin,  erdMicrorems,     Microrems,     Rems,     1e-6L, Exact)

#define QORKIT_UNITS_RADABS(X, Fam) \
    X(Fam, Base, eraGrays,      Grays,      Grays, 1, Exact) \
    X(Fam, Lin,  eraMilligrays, Milligrays, Grays, 0.001L, Exact) \
    X(Fam, Lin,  eraMicrograys, Micrograys, Grays, 1e-6L, Exact) \
    X(Fam, Lin,  eraRads,       Rads,       Grays, 0.01L, Exact) \
    X(Fam, Lin,  eraMillirads,  Millirads,  Rads,  0.001L, Exact) \
    X(Fam, Lin,  eraMicrorads,  Microrads,  Rads,  1e-6L, Exact)

// =================================================================================================
// The quantities converted only through their tables (no routines).

// ---- Counting quantities: base units -----------------------------------------------------------
#define QORKIT_UNITS_QUANTITY(X, Fam) \
    X(Fam, Base, eqtUnits,        Units,        Units, 1, Exact) \
    X(Fam, Lin,  eqtPairs,        Pairs,        Units, 2, Exact) \
    X(Fam, Lin,  eqtCouples,      Couples,      Units, 2, Exact) \
    X(Fam, Lin,  eqtDozens,       Dozens,       Units, 12, Exact) \
    X(Fam, Lin,  eqtDozensBakers, DozensBakers, Units, 13, Custom) \
    X(Fam, Lin,  eqtDozensMetric, DozensMetric, Units, 10, Custom) \
    X(Fam, Lin,  eqtScores,       Scores,       Units, 20, Exact) \
    X(Fam, Lin,  eqtGross,        Gross,        Dozens, 12, Exact) \
    X(Fam, Lin,  eqtGreatGross,   GreatGross,   Gross, 12, Exact) \
    X(Fam, Lin,  eqtBraces,       Braces,       Units, 2, Exact) \
    X(Fam, Lin,  eqtDoubles,      Doubles,      Units, 2, Exact) \
    X(Fam, Lin,  eqtTriples,      Triples,      Units, 3, Exact) \
    X(Fam, Lin,  eqtTrebles,      Trebles,      Units, 3, Exact) \
    X(Fam, Lin,  eqtCenturies,    Centuries,    Units, 100, Exact) \
    X(Fam, Lin,  eqtHalfCenturies, HalfCenturies, Units, 50, Exact) \
    X(Fam, Lin,  eqtSmallGross,   SmallGross,   Dozens, 10, Exact) \
    X(Fam, Lin,  eqtGreatHundred, GreatHundreds, Units, 120, Exact) \
    X(Fam, Lin,  eqtHundreds,     Hundreds,     Units, 100, Exact) \
    X(Fam, Lin,  eqtThousands,    Thousands,    Units, 1e3L, Exact) \
    X(Fam, Lin,  eqtMillions,     Millions,     Units, 1e6L, Exact) \
    X(Fam, Lin,  eqtBillions,     Billions,     Units, 1e9L, Exact) \
    X(Fam, Lin,  eqtTrillions,    Trillions,    Units, 1e12L, Exact) \
    X(Fam, Lin,  eqtQuadrillions, Quadrillions, Units, 1e15L, Exact) \
    X(Fam, Lin,  eqtMyriads,      Myriads,      Units, 1e4L, Exact) \
    X(Fam, Lin,  eqtLakh,         Lakh,         Units, 1e5L, Exact) \
    X(Fam, Lin,  eqtCrore,        Crore,        Units, 1e7L, Exact) \
    X(Fam, Div,  eqtHalves,       Halves,       Units, 2, Exact) \
    X(Fam, Div,  eqtThirds,       Thirds,       Units, 3, Exact) \
    X(Fam, Div,  eqtQuarters,     Quarters,     Units, 4, Exact)

// ---- Computer storage: base bytes; "(2)" prefixes are powers of 1024, "(10)" of 1000 ----------
#define QORKIT_UNITS_COMPUTER(X, Fam) \
    X(Fam, Base, ectBytes,       Bytes,       Bytes, 1, Exact) \
    X(Fam, Lin,  ectOctets,      Octets,      Bytes, 1, Exact) \
    X(Fam, Div,  ectBits,        Bits,        Bytes, 8, Exact) \
    X(Fam, Div,  ectNibbles,     Nibbles,     Bytes, 2, Exact) \
    X(Fam, Lin,  ectBlocks,      Blocks,      Bytes, 512, Custom) \
    X(Fam, Lin,  ectKiloBytes,   KB,          Bytes, 0x1p10L, Exact) \
    X(Fam, Lin,  ectMegaBytes,   MB,          Bytes, 0x1p20L, Exact) \
    X(Fam, Lin,  ectGigaBytes,   GB,          Bytes, 0x1p30L, Exact) \
    X(Fam, Lin,  ectTeraBytes,   TB,          Bytes, 0x1p40L, Exact) \
    X(Fam, Lin,  ectPetaBytes,   PB,          Bytes, 0x1p50L, Exact) \
    X(Fam, Lin,  ectExaBytes,    EB,          Bytes, 0x1p60L, Exact) \
    X(Fam, Lin,  ectKibiBytes,   KiB,         Bytes, 0x1p10L, Exact) \
    X(Fam, Lin,  ectMebiBytes,   MiB,         Bytes, 0x1p20L, Exact) \
    X(Fam, Lin,  ectGibiBytes,   GiB,         Bytes, 0x1p30L, Exact) \
    X(Fam, Lin,  ectTebiBytes,   TiB,         Bytes, 0x1p40L, Exact) \
    X(Fam, Lin,  ectPebiBytes,   PiB,         Bytes, 0x1p50L, Exact) \
    X(Fam, Lin,  ectExbiBytes,   EiB,         Bytes, 0x1p60L, Exact) \
    X(Fam, Lin,  ectKiloBytes10, KB10,        Bytes, 1e3L, Exact) \
    X(Fam, Lin,  ectMegaBytes10, MB10,        Bytes, 1e6L, Exact) \
    X(Fam, Lin,  ectGigaBytes10, GB10,        Bytes, 1e9L, Exact) \
    X(Fam, Lin,  ectTeraBytes10, TB10,        Bytes, 1e12L, Exact) \
    X(Fam, Lin,  ectPetaBytes10, PB10,        Bytes, 1e15L, Exact) \
    X(Fam, Lin,  ectExaBytes10,  EB10,        Bytes, 1e18L, Exact) \
    X(Fam, Lin,  ectKilobits,    Kb,          Bits,  0x1p10L, Exact) \
    X(Fam, Lin,  ectMegabits,    Mb,          Bits,  0x1p20L, Exact) \
    X(Fam, Lin,  ectGigabits,    Gb,          Bits,  0x1p30L, Exact) \
    X(Fam, Lin,  ectTerabits,    Tb,          Bits,  0x1p40L, Exact) \
    X(Fam, Lin,  ectPetabits,    Pb,          Bits,  0x1p50L, Exact) \
    X(Fam, Lin,  ectExabits,     Eb,          Bits,  0x1p60L, Exact) \
    X(Fam, Lin,  ectKibibits,    Kib,         Bits,  0x1p10L, Exact) \
    X(Fam, Lin,  ectMebibits,    Mib,         Bits,  0x1p20L, Exact) \
    X(Fam, Lin,  ectGibibits,    Gib,         Bits,  0x1p30L, Exact) \
    X(Fam, Lin,  ectTebibits,    Tib,         Bits,  0x1p40L, Exact) \
    X(Fam, Lin,  ectPebibits,    Pib,         Bits,  0x1p50L, Exact) \
    X(Fam, Lin,  ectExbibits,    Eib,         Bits,  0x1p60L, Exact) \
    X(Fam, Lin,  ectKilobits10,  Kb10,        Bits,  1e3L, Exact) \
    X(Fam, Lin,  ectMegabits10,  Mb10,        Bits,  1e6L, Exact) \
    X(Fam, Lin,  ectGigabits10,  Gb10,        Bits,  1e9L, Exact) \
    X(Fam, Lin,  ectTerabits10,  Tb10,        Bits,  1e12L, Exact) \
    X(Fam, Lin,  ectPetabits10,  Pb10,        Bits,  1e15L, Exact) \
    X(Fam, Lin,  ectExabits10,   Eb10,        Bits,  1e18L, Exact) \
    X(Fam, Lin,  ectAudioMinutes, AudioMinutes, Bytes, 44100 * 2 * 2 * 60, Custom)

// ---- Data rates: base bits per second; the prefixes are decimal, as in telecommunications -----
#define QORKIT_UNITS_DATARATE(X, Fam) \
    X(Fam, Base, edrBitsPS,      BitsPS,      BitsPS,  1, Exact) \
    X(Fam, Lin,  edrKilobitsPS,  KbitsPS,     BitsPS,  1e3L, Exact) \
    X(Fam, Lin,  edrMegabitsPS,  MbitsPS,     BitsPS,  1e6L, Exact) \
    X(Fam, Lin,  edrGigabitsPS,  GbitsPS,     BitsPS,  1e9L, Exact) \
    X(Fam, Lin,  edrTerabitsPS,  TbitsPS,     BitsPS,  1e12L, Exact) \
    X(Fam, Lin,  edrBytesPS,     BytesPS,     BitsPS,  8, Exact) \
    X(Fam, Lin,  edrKilobytesPS, KBytesPS,    BytesPS, 1e3L, Exact) \
    X(Fam, Lin,  edrMegabytesPS, MBytesPS,    BytesPS, 1e6L, Exact) \
    X(Fam, Lin,  edrGigabytesPS, GBytesPS,    BytesPS, 1e9L, Exact) \
    X(Fam, Lin,  edrTerabytesPS, TBytesPS,    BytesPS, 1e12L, Exact) \
    X(Fam, Lin,  edrBaud,        Baud,        BitsPS,  1, Custom) \
    X(Fam, Div,  edrBitsPM,      BitsPM,      BitsPS,  60, Exact) \
    X(Fam, Div,  edrKilobitsPM,  KbitsPM,     KbitsPS, 60, Exact) \
    X(Fam, Div,  edrMegabitsPM,  MbitsPM,     MbitsPS, 60, Exact) \
    X(Fam, Div,  edrGigabitsPM,  GbitsPM,     GbitsPS, 60, Exact) \
    X(Fam, Div,  edrTerabitsPM,  TbitsPM,     TbitsPS, 60, Exact) \
    X(Fam, Div,  edrBytesPM,     BytesPM,     BytesPS, 60, Exact) \
    X(Fam, Div,  edrKilobytesPM, KBytesPM,    KBytesPS, 60, Exact) \
    X(Fam, Div,  edrMegabytesPM, MBytesPM,    MBytesPS, 60, Exact) \
    X(Fam, Div,  edrGigabytesPM, GBytesPM,    GBytesPS, 60, Exact) \
    X(Fam, Div,  edrTerabytesPM, TBytesPM,    TBytesPS, 60, Exact) \
    X(Fam, Div,  edrBitsPH,      BitsPH,      BitsPS,  3600, Exact) \
    X(Fam, Div,  edrKilobitsPH,  KbitsPH,     KbitsPS, 3600, Exact) \
    X(Fam, Div,  edrMegabitsPH,  MbitsPH,     MbitsPS, 3600, Exact) \
    X(Fam, Div,  edrGigabitsPH,  GbitsPH,     GbitsPS, 3600, Exact) \
    X(Fam, Div,  edrTerabitsPH,  TbitsPH,     TbitsPS, 3600, Exact) \
    X(Fam, Div,  edrBytesPH,     BytesPH,     BytesPS, 3600, Exact) \
    X(Fam, Div,  edrKilobytesPH, KBytesPH,    KBytesPS, 3600, Exact) \
    X(Fam, Div,  edrMegabytesPH, MBytesPH,    MBytesPS, 3600, Exact) \
    X(Fam, Div,  edrGigabytesPH, GBytesPH,    GBytesPS, 3600, Exact) \
    X(Fam, Div,  edrTerabytesPH, TBytesPH,    TBytesPS, 3600, Exact)

// ---- Angles: base radians; the slopes are angles given as a rise over a run -------------------
#define QORKIT_UNITS_ANGLE(X, Fam) \
    X(Fam, Base,  eatRadians,       Radians,       Radians, 1, Exact) \
    X(Fam, Lin,   eatMilliradians,  Milliradians,  Radians, 0.001L, Exact) \
    X(Fam, Lin,   eatMicroradians,  Microradians,  Radians, 1e-6L, Exact) \
    X(Fam, Lin,   eatNanoradians,   Nanoradians,   Radians, 1e-9L, Exact) \
    X(Fam, Lin,   eatDegrees,       Degrees,       Radians, OneDegree, Const) \
    X(Fam, Lin,   eatGrads,         Grads,         Radians, QORPi / 200, Const) \
    X(Fam, Div,   eatMinutes,       Minutes,       Degrees, 60, Const) \
    X(Fam, Div,   eatSeconds,       Seconds,       Degrees, 3600, Const) \
    X(Fam, Lin,   eatMillidegrees,  Millidegrees,  Degrees, 0.001L, Const) \
    X(Fam, Lin,   eatMicrodegrees,  Microdegrees,  Degrees, 1e-6L, Const) \
    X(Fam, Lin,   eatBinaryDegrees, BinaryDegrees, Radians, TwoPi / 256, Const) \
    X(Fam, Lin,   eatBinaryRadians, BinaryRadians, Radians, TwoPi / 256, Const) \
    X(Fam, Lin,   eatPointsAngle,   Points,        Radians, TwoPi / 32, Const) \
    X(Fam, Slope, eatGrade,         Grade,         Radians, 100, Exact) \
    X(Fam, Slope, eatGradePerMil,   GradePerMil,   Radians, 1000, Exact) \
    X(Fam, Slope, eatRiseRatio,     RiseRatio,     Radians, 1, Exact) \
    X(Fam, Lin,   eatCircles,       Circles,       Radians, TwoPi, Const) \
    X(Fam, Lin,   eatSemicircles,   Semicircles,   Radians, QORPi, Const) \
    X(Fam, Lin,   eatQuadrants,     Quadrants,     Radians, QORPi / 2, Const) \
    X(Fam, Lin,   eatAngularMils,   AngularMils,   Radians, TwoPi / 6400, Const)

// ---- Time: base days ---------------------------------------------------------------------------
#define QORKIT_UNITS_TIME(X, Fam) \
    X(Fam, Div, ettSeconds,             Seconds,         Days,     86400, Exact) \
    X(Fam, Base, ettDays,               Days,            Days,     1, Exact) \
    X(Fam, Div, ettHours,               Hours,           Days,     24, Exact) \
    X(Fam, Div, ettMinutes,             Minutes,         Days,     1440, Exact) \
    X(Fam, Lin, ettWeeks,               Weeks,           Days,     7, Exact) \
    X(Fam, Lin, ettFortnights,          Fortnights,      Days,     14, Exact) \
    X(Fam, Lin, ettMonths,              Months,          Days,     29.530588L, Ref) \
    X(Fam, Lin, ettMonths28,            Months28,        Days,     28, Exact) \
    X(Fam, Lin, ettMonths30,            Months30,        Days,     30, Exact) \
    X(Fam, Lin, ettSiderealDays,        SiderealDays,    Seconds,  86164.0905L, Ref) \
    X(Fam, Lin, ettSiderealMonths,      SiderealMonths,  Days,     27.321661L, Ref) \
    X(Fam, Lin, ettYears,               Years,           Days,     365.24219L, Ref) \
    X(Fam, Lin, ettYears360,            Years360,        Days,     360, Exact) \
    X(Fam, Lin, ettYears365,            Years365,        Days,     365, Exact) \
    X(Fam, Lin, ettYearsGregorian,      YearsGregorian,  Days,     365.2425L, Exact) \
    X(Fam, Lin, ettYearsJulian,         YearsJulian,     Days,     365.25L, Exact) \
    X(Fam, Lin, ettYearsSidereal,       YearsSidereal,   Days,     365.256363L, Ref) \
    X(Fam, Lin, ettDecades,             Decades,         Years,    10, Ref) \
    X(Fam, Lin, ettDecades360,          Decades360,      Years360, 10, Exact) \
    X(Fam, Lin, ettDecades365,          Decades365,      Years365, 10, Exact) \
    X(Fam, Lin, ettDecadesGregorian,    DecadesGregorian, YearsGregorian, 10, Exact) \
    X(Fam, Lin, ettDecadesJulian,       DecadesJulian,   YearsJulian, 10, Exact) \
    X(Fam, Lin, ettCenturies,           Centuries,       Years,    100, Ref) \
    X(Fam, Lin, ettCenturies360,        Centuries360,    Years360, 100, Exact) \
    X(Fam, Lin, ettCenturies365,        Centuries365,    Years365, 100, Exact) \
    X(Fam, Lin, ettCenturiesGregorian,  CenturiesGregorian, YearsGregorian, 100, Exact) \
    X(Fam, Lin, ettCenturiesJulian,     CenturiesJulian, YearsJulian, 100, Exact) \
    X(Fam, Lin, ettMicroseconds,        Microseconds,    Seconds,  1e-6L, Exact) \
    X(Fam, Lin, ettMilliseconds,        Milliseconds,    Seconds,  0.001L, Exact) \
    X(Fam, Lin, ettKiloseconds,         Kiloseconds,     Seconds,  1e3L, Exact) \
    X(Fam, Lin, ettMegaseconds,         Megaseconds,     Seconds,  1e6L, Exact) \
    X(Fam, Lin, ettGigaseconds,         Gigaseconds,     Seconds,  1e9L, Exact) \
    X(Fam, Lin, ettMarsYears,           MarsYears,       Days,     686.980L, Ref) \
    X(Fam, Lin, ettMarsSolarDays,       MarsSolarDays,   Seconds,  88775.244L, Ref) \
    X(Fam, Lin, ettMarsSiderealDays,    MarsSiderealDays, Hours,   24.6229L, Ref) \
    X(Fam, Lin, ettVenusYears,          VenusYears,      Days,     224.701L, Ref) \
    X(Fam, Lin, ettVenusSolarDays,      VenusSolarDays,  Days,     116.75L, Ref) \
    X(Fam, Lin, ettVenusSiderealDays,   VenusSiderealDays, Days,   243.0226L, Ref) \
    X(Fam, Lin, ettNanoseconds,         Nanoseconds,     Seconds,  1e-9L, Exact) \
    X(Fam, Lin, ettPicoseconds,         Picoseconds,     Seconds,  1e-12L, Exact) \
    X(Fam, Lin, ettFemtoseconds,        Femtoseconds,    Seconds,  1e-15L, Exact) \
    X(Fam, Lin, ettLunaDaysSolar,       LunaSolarDays,   Days,     29.530588L, Ref) \
    X(Fam, Lin, ettLunaDaysSidereal,    LunaSiderealDays, Days,    27.321661L, Ref) \
    X(Fam, Lin, ettMercuryYears,        MercuryYears,    Days,     87.969L, Ref) \
    X(Fam, Lin, ettMercurySolarDays,    MercurySolarDays, Days,    175.9421L, Ref) \
    X(Fam, Lin, ettMercurySiderealDays, MercurySiderealDays, Days, 58.6462L, Ref) \
    X(Fam, Lin, ettJupiterYears,        JupiterYears,    Days,     4332.589L, Ref) \
    X(Fam, Lin, ettJupiterSolarDays,    JupiterSolarDays, Hours,   9.9259L, Ref) \
    X(Fam, Lin, ettJupiterSiderealDays, JupiterSiderealDays, Hours, 9.9250L, Ref) \
    X(Fam, Lin, ettSaturnYears,         SaturnYears,     Days,     10759.22L, Ref) \
    X(Fam, Lin, ettSaturnSolarDays,     SaturnSolarDays, Hours,    10.656L, Ref) \
    X(Fam, Lin, ettSaturnSiderealDays,  SaturnSiderealDays, Hours, 10.656L, Ref) \
    X(Fam, Lin, ettUranusYears,         UranusYears,     Days,     30685.4L, Ref) \
    X(Fam, Lin, ettUranusSolarDays,     UranusSolarDays, Hours,    17.24L, Ref) \
    X(Fam, Lin, ettUranusSiderealDays,  UranusSiderealDays, Hours, 17.24L, Ref) \
    X(Fam, Lin, ettNeptuneYears,        NeptuneYears,    Days,     60189, Ref) \
    X(Fam, Lin, ettNeptuneSolarDays,    NeptuneSolarDays, Hours,   16.11L, Ref) \
    X(Fam, Lin, ettNeptuneSiderealDays, NeptuneSiderealDays, Hours, 16.11L, Ref) \
    X(Fam, Lin, ettYears364,            Years364,        Days,     364, Exact) \
    X(Fam, Lin, ettDecades364,          Decades364,      Years364, 10, Exact) \
    X(Fam, Lin, ettCenturies364,        Centuries364,    Years364, 100, Exact) \
    X(Fam, Lin, ettMonthsLunar,         MonthsLunar,     Days,     29.530588L, Ref) \
    X(Fam, Lin, ettLunations,           Lunations,       Days,     29.530588L, Ref) \
    X(Fam, Lin, ettYearsLunar,          YearsLunar,      Lunations, 12, Ref) \
    X(Fam, Lin, ettSunDaysSidereal,     SunSiderealDays, Days,     25.38L, Ref)

// ---- Magnetic field strength: base amperes per metre -------------------------------------------
#define QORKIT_UNITS_MAGFIELD(X, Fam) \
    X(Fam, Base, emtAmperesPerMetre,       AmpsPerM,         AmpsPerM, 1, Exact) \
    X(Fam, Lin,  emtOersteds,              Oersteds,         AmpsPerM, 1000 / (2 * TwoPi), Exact) \
    X(Fam, Lin,  emtGilbertsPerMetre,      GilbertsPerM,     AmpsPerM, 10 / (2 * TwoPi), Exact) \
    X(Fam, Lin,  emtGilbertsPerCentimetre, GilbertsPerCm,    GilbertsPerM, 100, Exact) \
    X(Fam, Lin,  emtAmperesPerCentimetre,  AmpsPerCm,        AmpsPerM, 100, Exact)

// clang-format on
