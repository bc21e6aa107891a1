using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A light of a model.</summary>
[CadSequence]
[CadObject("LIGHT", Subclass = "AcDbLight")]
[CadBits(
    "BL Version", "T Name", "BL LightType", "B IsOn", "CMC LightColorId LightColorValue", "B IsGlyphPlotted",
    "BD Intensity", "3BD Position", "3BD Target", "BL AttenuationType", "B UseAttenuationLimits",
    "BD AttenuationStart", "BD AttenuationEnd", "BD HotspotAngle", "BD FalloffAngle", "B CastShadows",
    "BL ShadowType", "BS ShadowMapSize", "RC ShadowMapSoftness")]
public partial class CadLight : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLight()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the kind: 1 distant, 2 a point, 3 a spot. Group code 70.</summary>
    [CadShort(70)]
    public short LightType { get; set; } = 2;

    /// <summary>Gets or sets whether the light shines. Group code 290.</summary>
    [CadBool(290)]
    public bool IsOn { get; set; } = true;

    /// <summary>Gets or sets the colour in drawings of release 2002 and before: 0xC2RRGGBB a true colour, 0xC3000000
    /// plus the index of a colour. Group code 90.</summary>
    [CadInt(90, Optional = true)]
    public int PlainColor { get; set; }

    /// <summary>Gets or sets the index of the colour of the light. Group code 63.</summary>
    [CadColor(63, Optional = true)]
    public short LightColorId { get; set; } = 7;

    /// <summary>Gets or sets the colour of the light as 0xRRGGBB; -1 for none. Group code 421.</summary>
    [CadInt(421, Optional = true)]
    public int LightColorValue { get; set; } = -1;

    /// <summary>Gets or sets whether the symbol of the light is plotted. Group code 291.</summary>
    [CadBool(291)]
    public bool IsGlyphPlotted { get; set; }

    /// <summary>Gets or sets the intensity. Group code 40.</summary>
    [CadDouble(40)]
    public double Intensity { get; set; } = 1;

    /// <summary>Gets or sets the position, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint Position { get; set; } = new();

    /// <summary>Gets or sets the point that the light is directed to, in world coordinates. Group codes 11, 21,
    /// 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint Target { get; set; } = new();

    /// <summary>Gets or sets the attenuation: 0 none, 1 inverse linear, 2 inverse square. Group code 72.</summary>
    [CadShort(72)]
    public short AttenuationType { get; set; }

    /// <summary>Gets or sets whether attenuation has limits. Group code 292.</summary>
    [CadBool(292)]
    public bool UseAttenuationLimits { get; set; }

    /// <summary>Gets or sets the distance at which attenuation starts, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    public double AttenuationStart { get; set; } = 1;

    /// <summary>Gets or sets the distance at which attenuation ends, in drawing units. Group code 42.</summary>
    [CadDouble(42)]
    public double AttenuationEnd { get; set; } = 10;

    /// <summary>Gets or sets the angle of the brightest cone of a spot, in degrees. Group code 50.</summary>
    [CadAngle(50)]
    public double HotspotAngle { get; set; } = 45;

    /// <summary>Gets or sets the angle of the whole cone of a spot, in degrees. Group code 51.</summary>
    [CadAngle(51)]
    public double FalloffAngle { get; set; } = 50;

    /// <summary>Gets or sets whether the light casts shadows. Group code 293.</summary>
    [CadBool(293)]
    public bool CastShadows { get; set; } = true;

    /// <summary>Gets or sets the kind of shadows: 0 ray traced, 1 shadow maps. Group code 73.</summary>
    [CadShort(73)]
    public short ShadowType { get; set; }

    /// <summary>Gets or sets the size of shadow maps in pixels. Group code 91.</summary>
    [CadInt(91)]
    public int ShadowMapSize { get; set; } = 256;

    /// <summary>Gets or sets the softness of shadows, 1 to 10. Group code 280.</summary>
    [CadShort(280)]
    public short ShadowMapSoftness { get; set; } = 1;
}
