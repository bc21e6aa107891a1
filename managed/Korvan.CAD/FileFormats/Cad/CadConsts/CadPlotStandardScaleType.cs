using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The standard scales of pages. Group code 75.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadPlotStandardScaleType
{
    /// <summary>Scaled to fit the paper.</summary>
    ScaledToFit = 0,

    /// <summary>1/128 inch on paper is 1 foot.</summary>
    Inch128ThToFoot = 1,

    /// <summary>1/64 inch on paper is 1 foot.</summary>
    Inch64ThToFoot = 2,

    /// <summary>1/32 inch on paper is 1 foot.</summary>
    Inch32NdToFoot = 3,

    /// <summary>1/16 inch on paper is 1 foot.</summary>
    Inch16ThToFoot = 4,

    /// <summary>3/32 inch on paper is 1 foot.</summary>
    Inches3By32ToFoot = 5,

    /// <summary>1/8 inch on paper is 1 foot.</summary>
    Inch8ThToFoot = 6,

    /// <summary>3/16 inch on paper is 1 foot.</summary>
    Inches3By16ToFoot = 7,

    /// <summary>1/4 inch on paper is 1 foot.</summary>
    InchQuarterToFoot = 8,

    /// <summary>3/8 inch on paper is 1 foot.</summary>
    Inches3By8ToFoot = 9,

    /// <summary>1/2 inch on paper is 1 foot.</summary>
    InchHalfToFoot = 10,

    /// <summary>3/4 inch on paper is 1 foot.</summary>
    Inches3By4ToFoot = 11,

    /// <summary>1 inch on paper is 1 foot.</summary>
    Inch1ToFoot = 12,

    /// <summary>3 inches on paper are 1 foot.</summary>
    Inches3ToFoot = 13,

    /// <summary>6 inches on paper are 1 foot.</summary>
    Inches6ToFoot = 14,

    /// <summary>1 foot on paper is 1 foot.</summary>
    FootToFoot = 15,

    /// <summary>1 to 1.</summary>
    Ratio1To1 = 16,

    /// <summary>1 to 2.</summary>
    Ratio1To2 = 17,

    /// <summary>1 to 4.</summary>
    Ratio1To4 = 18,

    /// <summary>1 to 8.</summary>
    Ratio1To8 = 19,

    /// <summary>1 to 10.</summary>
    Ratio1To10 = 20,

    /// <summary>1 to 16.</summary>
    Ratio1To16 = 21,

    /// <summary>1 to 20.</summary>
    Ratio1To20 = 22,

    /// <summary>1 to 30.</summary>
    Ratio1To30 = 23,

    /// <summary>1 to 40.</summary>
    Ratio1To40 = 24,

    /// <summary>1 to 50.</summary>
    Ratio1To50 = 25,

    /// <summary>1 to 100.</summary>
    Ratio1To100 = 26,

    /// <summary>2 to 1.</summary>
    Ratio2To1 = 27,

    /// <summary>4 to 1.</summary>
    Ratio4To1 = 28,

    /// <summary>8 to 1.</summary>
    Ratio8To1 = 29,

    /// <summary>10 to 1.</summary>
    Ratio10To1 = 30,

    /// <summary>100 to 1.</summary>
    Ratio100To1 = 31,

    /// <summary>1000 to 1.</summary>
    Ratio1000To1 = 32,
}
