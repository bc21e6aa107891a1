using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A material: how surfaces reflect light, and the images on them.</summary>
[CadSequence]
[CadObject("MATERIAL", Subclass = "AcDbMaterial")]
[CadBits(
    "T Name", "T Description", "RC AmbientColorMethod", "BD AmbientColorFactor",
    "if AmbientColorMethod == 1: BL AmbientColorValue", "RC DiffuseColorMethod", "BD DiffuseColorFactor",
    "if DiffuseColorMethod == 1: BL DiffuseColorValue", "BD DiffuseMapBlendFactor", "RC DiffuseMapProjection",
    "RC DiffuseMapTiling", "RC DiffuseMapAutoTransform", "Matrix DiffuseMapTransform", "RC DiffuseMapSource",
    "if DiffuseMapSource == 1: T DiffuseMapFileName", "RC SpecularColorMethod", "BD SpecularColorFactor",
    "if SpecularColorMethod == 1: BL SpecularColorValue", "BD SpecularMapBlendFactor", "RC SpecularMapProjection",
    "RC SpecularMapTiling", "RC SpecularMapAutoTransform", "Matrix SpecularMapTransform", "RC SpecularMapSource",
    "if SpecularMapSource == 1: T SpecularMapFileName", "BD SpecularGlossFactor", "BD ReflectionMapBlendFactor",
    "RC ReflectionMapProjection", "RC ReflectionMapTiling", "RC ReflectionMapAutoTransform",
    "Matrix ReflectionMapTransform", "RC ReflectionMapSource", "if ReflectionMapSource == 1: T ReflectionMapFileName",
    "BD OpacityPercent", "BD OpacityMapBlendFactor", "RC OpacityMapProjection", "RC OpacityMapTiling",
    "RC OpacityMapAutoTransform", "Matrix OpacityMapTransform", "RC OpacityMapSource",
    "if OpacityMapSource == 1: T OpacityMapFileName", "BD BumpMapBlendFactor", "RC BumpMapProjection",
    "RC BumpMapTiling", "RC BumpMapAutoTransform", "Matrix BumpMapTransform", "RC BumpMapSource",
    "if BumpMapSource == 1: T BumpMapFileName", "BD RefractionIndex", "BD RefractionMapBlendFactor",
    "RC RefractionMapProjection", "RC RefractionMapTiling", "RC RefractionMapAutoTransform",
    "Matrix RefractionMapTransform", "RC RefractionMapSource", "if RefractionMapSource == 1: T RefractionMapFileName",
    "2007+ BD Translucence", "2007+ BD SelfIllumination", "2007+ BD Reflectivity", "2007+ BL IlluminationModel",
    "2007+ BL ChannelFlags", "2007+ BL Mode")]
public partial class CadMaterial : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMaterial()
    {
    }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the description. Group code 2.</summary>
    [CadString(2, Optional = true)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the ambient colour: 0 that of the entity, 1 that of the material. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short AmbientColorMethod { get; set; }

    /// <summary>Gets or sets the factor on the ambient colour, 0 to 1. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double AmbientColorFactor { get; set; } = 1;

    /// <summary>Gets or sets the ambient colour: 0xC2RRGGBB a true colour, 0xC3000000 plus the index of a colour. Group
    /// code 90.</summary>
    [CadInt(90, Optional = true)]
    public int AmbientColorValue { get; set; }

    /// <summary>Gets or sets the diffuse colour: 0 that of the entity, 1 that of the material. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short DiffuseColorMethod { get; set; }

    /// <summary>Gets or sets the factor on the diffuse colour, 0 to 1. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double DiffuseColorFactor { get; set; } = 1;

    /// <summary>Gets or sets the diffuse colour: 0xC2RRGGBB a true colour, 0xC3000000 plus the index of a colour. Group
    /// code 91.</summary>
    [CadInt(91, Optional = true)]
    public int DiffuseColorValue { get; set; }

    /// <summary>Gets or sets the weight of the diffuse map, 0 to 1. Group code 42.</summary>
    [CadDouble(42, Optional = true)]
    public double DiffuseMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the diffuse map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 72.</summary>
    [CadShort(72, Optional = true)]
    public short DiffuseMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the diffuse map; empty for no map. Group code 3.</summary>
    [CadString(3, Optional = true)]
    public string DiffuseMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the diffuse map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 73.</summary>
    [CadShort(73, Optional = true)]
    public short DiffuseMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the diffuse map: 1 tiled, 2 cropped, 3 clamped. Group code 74.</summary>
    [CadShort(74, Optional = true)]
    public short DiffuseMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the diffuse map fits the entity: 1 not, 2 scaled to its extents, 4 with the transform
    /// of its block. Group code 75.</summary>
    [CadShort(75, Optional = true)]
    public short DiffuseMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the diffuse map: 16 numbers, row by row; none for the identity. The list is live.
    /// Group code 43.</summary>
    [CadList(43, Max = 16)]
    public List<double> DiffuseMapTransform { get; } = [];

    /// <summary>Gets or sets the size of highlights, 0 to 1. Group code 44.</summary>
    [CadDouble(44, Optional = true)]
    public double SpecularGlossFactor { get; set; } = 0.5;

    /// <summary>Gets or sets the colour of highlights: 0 that of the entity, 1 that of the material. Group code
    /// 76.</summary>
    [CadShort(76, Optional = true)]
    public short SpecularColorMethod { get; set; }

    /// <summary>Gets or sets the factor on the colour of highlights, 0 to 1. Group code 45.</summary>
    [CadDouble(45, Optional = true)]
    public double SpecularColorFactor { get; set; } = 1;

    /// <summary>Gets or sets the colour of highlights: 0xC2RRGGBB a true colour, 0xC3000000 plus the index of a colour.
    /// Group code 92.</summary>
    [CadInt(92, Optional = true)]
    public int SpecularColorValue { get; set; }

    /// <summary>Gets or sets the weight of the specular map, 0 to 1. Group code 46.</summary>
    [CadDouble(46, Optional = true)]
    public double SpecularMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the specular map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 77.</summary>
    [CadShort(77, Optional = true)]
    public short SpecularMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the specular map; empty for no map. Group code 4.</summary>
    [CadString(4, Optional = true)]
    public string SpecularMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the specular map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 78.</summary>
    [CadShort(78, Optional = true)]
    public short SpecularMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the specular map: 1 tiled, 2 cropped, 3 clamped. Group code 79.</summary>
    [CadShort(79, Optional = true)]
    public short SpecularMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the specular map fits the entity: 1 not, 2 scaled to its extents, 4 with the transform
    /// of its block. Group code 170.</summary>
    [CadShort(170, Optional = true)]
    public short SpecularMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the specular map: 16 numbers, row by row; none for the identity. The list is
    /// live. Group code 47.</summary>
    [CadList(47, Max = 16)]
    public List<double> SpecularMapTransform { get; } = [];

    /// <summary>Gets or sets the weight of the reflection map, 0 to 1. Group code 48.</summary>
    [CadDouble(48, Optional = true)]
    public double ReflectionMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the reflection map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 171.</summary>
    [CadShort(171, Optional = true)]
    public short ReflectionMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the reflection map; empty for no map. Group code 6.</summary>
    [CadString(6, Optional = true)]
    public string ReflectionMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the reflection map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 172.</summary>
    [CadShort(172, Optional = true)]
    public short ReflectionMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the reflection map: 1 tiled, 2 cropped, 3 clamped. Group code 173.</summary>
    [CadShort(173, Optional = true)]
    public short ReflectionMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the reflection map fits the entity: 1 not, 2 scaled to its extents, 4 with the
    /// transform of its block. Group code 174.</summary>
    [CadShort(174, Optional = true)]
    public short ReflectionMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the reflection map: 16 numbers, row by row; none for the identity. The list is
    /// live. Group code 49.</summary>
    [CadList(49, Max = 16)]
    public List<double> ReflectionMapTransform { get; } = [];

    /// <summary>Gets or sets the opacity, 0 to 1. Group code 140.</summary>
    [CadDouble(140, Optional = true)]
    public double OpacityPercent { get; set; } = 1;

    /// <summary>Gets or sets the weight of the opacity map, 0 to 1. Group code 141.</summary>
    [CadDouble(141, Optional = true)]
    public double OpacityMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the opacity map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 175.</summary>
    [CadShort(175, Optional = true)]
    public short OpacityMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the opacity map; empty for no map. Group code 7.</summary>
    [CadString(7, Optional = true)]
    public string OpacityMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the opacity map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 176.</summary>
    [CadShort(176, Optional = true)]
    public short OpacityMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the opacity map: 1 tiled, 2 cropped, 3 clamped. Group code 177.</summary>
    [CadShort(177, Optional = true)]
    public short OpacityMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the opacity map fits the entity: 1 not, 2 scaled to its extents, 4 with the transform
    /// of its block. Group code 178.</summary>
    [CadShort(178, Optional = true)]
    public short OpacityMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the opacity map: 16 numbers, row by row; none for the identity. The list is live.
    /// Group code 142.</summary>
    [CadList(142, Max = 16)]
    public List<double> OpacityMapTransform { get; } = [];

    /// <summary>Gets or sets the weight of the bump map, 0 to 1. Group code 143.</summary>
    [CadDouble(143, Optional = true)]
    public double BumpMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the bump map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 179.</summary>
    [CadShort(179, Optional = true)]
    public short BumpMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the bump map; empty for no map. Group code 8.</summary>
    [CadString(8, Optional = true)]
    public string BumpMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the bump map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 270.</summary>
    [CadShort(270, Optional = true)]
    public short BumpMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the bump map: 1 tiled, 2 cropped, 3 clamped. Group code 271.</summary>
    [CadShort(271, Optional = true)]
    public short BumpMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the bump map fits the entity: 1 not, 2 scaled to its extents, 4 with the transform of
    /// its block. Group code 272.</summary>
    [CadShort(272, Optional = true)]
    public short BumpMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the bump map: 16 numbers, row by row; none for the identity. The list is live.
    /// Group code 144.</summary>
    [CadList(144, Max = 16)]
    public List<double> BumpMapTransform { get; } = [];

    /// <summary>Gets or sets the index of refraction. Group code 145.</summary>
    [CadDouble(145, Optional = true)]
    public double RefractionIndex { get; set; } = 1;

    /// <summary>Gets or sets the weight of the refraction map, 0 to 1. Group code 146.</summary>
    [CadDouble(146, Optional = true)]
    public double RefractionMapBlendFactor { get; set; } = 1;

    /// <summary>Gets or sets where the refraction map comes from: 0 the scene, 1 an image file, 2 computed. Group code
    /// 273.</summary>
    [CadShort(273, Optional = true)]
    public short RefractionMapSource { get; set; } = 1;

    /// <summary>Gets or sets the path of the file of the refraction map; empty for no map. Group code 9.</summary>
    [CadString(9, Optional = true)]
    public string RefractionMapFileName { get; set; } = "";

    /// <summary>Gets or sets the projection of the refraction map: 1 planar, 2 box, 3 cylinder, 4 sphere. Group code
    /// 274.</summary>
    [CadShort(274, Optional = true)]
    public short RefractionMapProjection { get; set; } = 1;

    /// <summary>Gets or sets the tiling of the refraction map: 1 tiled, 2 cropped, 3 clamped. Group code 275.</summary>
    [CadShort(275, Optional = true)]
    public short RefractionMapTiling { get; set; } = 1;

    /// <summary>Gets or sets how the refraction map fits the entity: 1 not, 2 scaled to its extents, 4 with the
    /// transform of its block. Group code 276.</summary>
    [CadShort(276, Optional = true)]
    public short RefractionMapAutoTransform { get; set; } = 1;

    /// <summary>Gets the transform of the refraction map: 16 numbers, row by row; none for the identity. The list is
    /// live. Group code 147.</summary>
    [CadList(147, Max = 16)]
    public List<double> RefractionMapTransform { get; } = [];

    /// <summary>Gets or sets the translucence, 0 to 1. Group code 148.</summary>
    [CadDouble(148, Optional = true)]
    public double Translucence { get; set; }

    /// <summary>Gets or sets the light that the material emits, 0 to 1. Group code 149.</summary>
    [CadDouble(149, Optional = true)]
    public double SelfIllumination { get; set; }

    /// <summary>Gets or sets the reflectivity, 0 to 1. Group code 468.</summary>
    [CadDouble(468, Optional = true)]
    public double Reflectivity { get; set; }

    /// <summary>Gets or sets the model of illumination: 0 Blinn, 1 metal. Group code 93.</summary>
    [CadInt(93, Optional = true)]
    public int IlluminationModel { get; set; }

    /// <summary>Gets or sets the channels that are used, a bit for each. Group code 94.</summary>
    [CadInt(94, Optional = true)]
    public int ChannelFlags { get; set; }

    /// <summary>Gets or sets the mode of the material. Group code 282.</summary>
    [CadShort(282, Optional = true)]
    public short Mode { get; set; }
}
