using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The sun of a viewport.</summary>
[CadSequence]
[CadObject("SUN", Subclass = "AcDbSun")]
[CadBits(
    "BL Version", "B IsOn", "CMC ColorId ColorValue", "BD Intensity", "B HasShadows", "BL JulianDay",
    "BL Milliseconds", "B IsDaylightSaving", "BL ShadowType", "BS ShadowMapSize", "RC ShadowSoftness")]
public partial class CadSunObject : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSunObject()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets whether the sun shines. Group code 290.</summary>
    [CadBool(290)]
    public bool IsOn { get; set; }

    /// <summary>Gets or sets the index of the colour. Group code 63.</summary>
    [CadColor(63)]
    public short ColorId { get; set; } = 7;

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 421.</summary>
    [CadInt(421, Optional = true)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the intensity. Group code 40.</summary>
    [CadDouble(40)]
    public double Intensity { get; set; } = 1;

    /// <summary>Gets or sets whether there are shadows. Group code 291.</summary>
    [CadBool(291)]
    public bool HasShadows { get; set; } = true;

    /// <summary>Gets or sets the day as a Julian day number. Group code 91.</summary>
    [CadInt(91)]
    public int JulianDay { get; set; }

    /// <summary>Gets or sets the time of day, in milliseconds. Group code 92.</summary>
    [CadInt(92)]
    public int Milliseconds { get; set; }

    /// <summary>Gets or sets whether the time is daylight saving time. Group code 292.</summary>
    [CadBool(292)]
    public bool IsDaylightSaving { get; set; }

    /// <summary>Gets or sets the kind of shadows: 0 ray traced, 1 shadow maps, 2 sampled. Group code 70.</summary>
    [CadShort(70)]
    public short ShadowType { get; set; }

    /// <summary>Gets or sets the size of shadow maps in pixels, 64 to 4096. Group code 71.</summary>
    [CadShort(71)]
    public short ShadowMapSize { get; set; } = 256;

    /// <summary>Gets or sets the softness of shadows, 1 to 10. Group code 280.</summary>
    [CadShort(280)]
    public short ShadowSoftness { get; set; } = 1;
}
