using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A visual style: how faces and edges of models are shown. Files have it in one of three forms, by their
/// release; an object keeps the form that it was read in.</summary>
[CadObject("VISUALSTYLE", Subclass = "AcDbVisualStyle")]
[CadSequence]
[CadBits(
    "T Description", "BL StyleType", "2010+ ExchangeFlagged()", "-2007 BL FaceLightingModel",
    "-2007 BL FaceLightingQuality", "-2007 BL FaceColorMode", "-2007 BD FaceOpacity", "-2007 BD FaceSpecular",
    "-2007 CMC FaceColorId FaceColorValue", "-2007 BL FaceModifiers", "-2007 BL EdgeModel", "-2007 BL EdgeStyle",
    "-2007 CMC IntersectionColorId IntersectionColorValue", "-2007 CMC ObscuredColorId ObscuredColorValue",
    "-2007 BL ObscuredLineType", "-2007 BD CreaseAngle", "-2007 BL EdgeModifiers",
    "-2007 CMC EdgeColorId EdgeColorValue", "-2007 BD EdgeOpacity", "-2007 BS EdgeWidth", "-2007 BS EdgeOverhang",
    "-2007 BL EdgeJitter", "-2007 CMC SilhouetteColorId SilhouetteColorValue", "-2007 BS SilhouetteWidth",
    "-2007 RC HaloGap", "-2007 BS IsolineCount", "-2007 B HidePrecision", "-2007 BS StyleApplies",
    "-2007 BS IntersectionLineType", "-2007 BL DisplaySettings", "-2007 BL Brightness", "-2007 BL ShadowType",
    "2007-2007 BD Reserved", "-2007 B IsInternal")]
public partial class CadVisualStyle : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadVisualStyle()
    {
    }

    /// <summary>Gets or sets the description. Group code 2.</summary>
    [CadString(2)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the number of the style: 0 flat, 4 wireframe in two dimensions, 5 in three, 6 hidden, 8
    /// realistic, 9 conceptual, 10 custom, up to 27. Group code 70.</summary>
    [CadInt(70)]
    public int StyleType { get; set; } = 10;

    /// <summary>Gets or sets the form of the fields: 0 up to release 2007, 2 of release 2010, 3 from release 2013 on.
    /// Group code 177.</summary>
    [CadShort(177, Optional = true)]
    public short Form { get; set; }

    /// <summary>Gets or sets whether the style is for internal use only. Group code 291.</summary>
    public bool IsInternal { get; set; }

    /// <summary>Gets or sets the lighting of faces: 0 hidden, 1 visible, 2 Phong, 3 Gooch. Group code 71, or 90 from
    /// release 2013 on.</summary>
    public int FaceLightingModel { get; set; }

    /// <summary>Gets or sets the quality of the lighting: 0 none, 1 by face, 2 by vertex. Group code 72, or 90 from
    /// release 2013 on.</summary>
    public int FaceLightingQuality { get; set; } = 1;

    /// <summary>Gets or sets the colour of faces: 0 none, 1 that of the object, 2 that of the background, 3 custom, 4
    /// one colour, 5 tinted, 6 desaturated. Group code 73, or 90 from release 2013 on.</summary>
    public int FaceColorMode { get; set; }

    /// <summary>Gets or sets what is changed of faces: 1 the opacity, 2 the highlights; added up. Group code
    /// 90.</summary>
    public int FaceModifiers { get; set; }

    /// <summary>Gets or sets the opacity of faces; negative while it is not used. Group code 40.</summary>
    public double FaceOpacity { get; set; } = 0.6;

    /// <summary>Gets or sets the size of highlights; negative while it is not used. Group code 41, or 40 from release
    /// 2013 on.</summary>
    public double FaceSpecular { get; set; } = 30;

    /// <summary>Gets or sets the index of the colour of faces in one colour. Group code 63, or 62 from release 2013
    /// on.</summary>
    public short FaceColorId { get; set; } = 7;

    /// <summary>Gets or sets the colour of faces in one colour as 0xRRGGBB; -1 for none. Group code 421, or 420 from
    /// release 2013 on.</summary>
    public int FaceColorValue { get; set; } = -1;

    /// <summary>Gets or sets the edges: 0 none, 1 isolines, 2 facets. Group code 74, or 90 from release 2013
    /// on.</summary>
    public int EdgeModel { get; set; } = 1;

    /// <summary>Gets or sets flags of edges: 1 visible, 2 silhouettes, 4 obscured, 8 intersections. Group code 91, or
    /// 90 from release 2013 on.</summary>
    public int EdgeStyle { get; set; } = 4;

    /// <summary>Gets or sets the index of the colour of intersections. Group code 64, or 62 from release 2013
    /// on.</summary>
    public short IntersectionColorId { get; set; } = 7;

    /// <summary>Gets or sets the colour of intersections as 0xRRGGBB; -1 for none. Group code 422, or 420 from release
    /// 2013 on.</summary>
    public int IntersectionColorValue { get; set; } = -1;

    /// <summary>Gets or sets the index of the colour of obscured edges. Group code 65, or 62 from release 2013
    /// on.</summary>
    public short ObscuredColorId { get; set; } = 257;

    /// <summary>Gets or sets the colour of obscured edges as 0xRRGGBB; -1 for none. Group code 423, or 420 from release
    /// 2013 on.</summary>
    public int ObscuredColorValue { get; set; } = -1;

    /// <summary>Gets or sets the line type of obscured edges: 1 solid, 2 dashed, 3 dotted, up to 11. Group code 75, or
    /// 90 from release 2013 on.</summary>
    public int ObscuredLineType { get; set; } = 1;

    /// <summary>Gets or sets the line type of intersections: 1 solid, 2 dashed, 3 dotted, up to 11. Group code 175, or
    /// 90 from release 2013 on.</summary>
    public int IntersectionLineType { get; set; } = 1;

    /// <summary>Gets or sets the angle below which edges between facets are left out, in degrees. Group code 42, or 40
    /// from release 2013 on.</summary>
    public double CreaseAngle { get; set; } = 1;

    /// <summary>Gets or sets flags of how edges are changed: 1 overhang, 2 jitter, 4 width, 8 colour, 16 halo gap, 64
    /// opacity. Group code 92, or 90 from release 2013 on.</summary>
    public int EdgeModifiers { get; set; } = 8;

    /// <summary>Gets or sets the index of the colour of edges. Group code 66, or 62 from release 2013 on.</summary>
    public short EdgeColorId { get; set; } = 257;

    /// <summary>Gets or sets the colour of edges as 0xRRGGBB; -1 for none. Group code 424, or 420 from release 2013
    /// on.</summary>
    public int EdgeColorValue { get; set; } = -1;

    /// <summary>Gets or sets the opacity of edges, 0 to 1. Group code 43, or 40 from release 2013 on.</summary>
    public double EdgeOpacity { get; set; } = 1;

    /// <summary>Gets or sets the width of edges, in pixels. Group code 76, or 90 from release 2013 on.</summary>
    public int EdgeWidth { get; set; } = 1;

    /// <summary>Gets or sets how far edges go beyond their ends, in pixels. Group code 77, or 90 from release 2013
    /// on.</summary>
    public int EdgeOverhang { get; set; } = 6;

    /// <summary>Gets or sets how far sketched edges differ: 0 not to 3 much. Group code 78, or 90 from release 2013
    /// on.</summary>
    public int EdgeJitter { get; set; } = 2;

    /// <summary>Gets or sets the index of the colour of silhouettes. Group code 67, or 62 from release 2013
    /// on.</summary>
    public short SilhouetteColorId { get; set; } = 7;

    /// <summary>Gets or sets the colour of silhouettes as 0xRRGGBB; -1 for none. Group code 425, or 420 from release
    /// 2013 on.</summary>
    public int SilhouetteColorValue { get; set; } = -1;

    /// <summary>Gets or sets the width of silhouettes, in pixels. Group code 79, or 90 from release 2013 on.</summary>
    public int SilhouetteWidth { get; set; } = 5;

    /// <summary>Gets or sets the gap before hidden edges, in percent of a unit. Group code 170, or 90 from release 2013
    /// on.</summary>
    public int HaloGap { get; set; }

    /// <summary>Gets or sets the number of isolines. Group code 171, or 90 from release 2013 on.</summary>
    public int IsolineCount { get; set; }

    /// <summary>Gets or sets whether hidden lines are computed in double precision. Group code 290.</summary>
    public bool HidePrecision { get; set; }

    /// <summary>Gets or sets which edges the style of edges is for: 0 all, 1 default ones. Files up to release 2007
    /// have it. Group code 174.</summary>
    public int StyleApplies { get; set; }

    /// <summary>Gets or sets flags of what is shown: 1 backgrounds, 2 lights, 4 materials, 8 shadows. Group code 93, or
    /// 90 from release 2013 on.</summary>
    public int DisplaySettings { get; set; } = 1;

    /// <summary>Gets or sets the brightness, -100 to 100. Group code 44, or 40 from release 2013 on.</summary>
    public double Brightness { get; set; }

    /// <summary>Gets or sets the shadows: 0 none, 1 on the ground, 2 full. Group code 173, or 90 from release 2013
    /// on.</summary>
    public int ShadowType { get; set; }

    /// <summary>Gets or sets a reserved number of files of release 2007. Group code 45.</summary>
    internal double Reserved { get; set; }

    /// <summary>Gets whether each value is stated by this style (1) or inherited (0), in the order of the file. The
    /// list is live. Group code 176.</summary>
    public List<int> ValueSources { get; } = [];

    /// <summary>Returns the further values of release 2013 and later, which have no names.</summary>
    /// <returns>The tags in the order of the file.</returns>
    public CadCodeValue[] GetFurtherValues() => [.. Further];

    /// <summary>Gets the further values.</summary>
    internal List<CadCodeValue> Further { get; } = [];

    /// <summary>Gets or sets the number of values that a file states.</summary>
    internal int ValueCount { get; set; } = 58;

    partial void OnExchange(ObjectExchange fields)
    {
        if (Form != 0)
        {
            IsInternal = fields.Bool(291, IsInternal);
        }

        if (Form == VisualStyleWalk.TypedForm)
        {
            ValueCount = fields.Int32(70, ValueCount);
        }

        VisualStyleTags walk = new(fields, Form, ValueSources);
        ExchangeFaces(walk);
        ExchangeEdges(walk);
        ExchangeDisplay(walk, fields);
        fields.Tags(Further);
    }

    // A flag follows each value. Styles of other releases are written in the form of the release.
    private void ExchangeFlagged(BitExchange fields)
    {
        const int typedRelease = 2013;
        short form = fields.Release >= typedRelease ? VisualStyleWalk.TypedForm : VisualStyleWalk.FlaggedForm;
        fields.BitShort(VisualStyleWalk.FlaggedForm);
        IsInternal = fields.Bit(IsInternal);
        VisualStyleBits walk = new(fields, form, ValueSources);
        ExchangeFaces(walk);
        ExchangeEdges(walk);
        ExchangeDisplay(walk);
        if (fields.IsReading)
        {
            Form = form;
        }

        if (fields.Release >= typedRelease)
        {
            List<CadCodeValue> further = fields.IsReading ? Further : [.. Further];
            walk.ExchangeFurther(further);
        }
    }

    private void ExchangeFaces(VisualStyleWalk walk)
    {
        FaceLightingModel = walk.Integer(71, FaceLightingModel);
        FaceLightingQuality = walk.Integer(72, FaceLightingQuality);
        FaceColorMode = walk.Integer(73, FaceColorMode);
        FaceModifiers = walk.Integer(90, FaceModifiers);
        FaceOpacity = walk.Number(40, FaceOpacity);
        FaceSpecular = walk.Number(41, FaceSpecular);
        (FaceColorId, FaceColorValue) = walk.Color(63, 421, FaceColorId, FaceColorValue);
    }

    private void ExchangeEdges(VisualStyleWalk walk)
    {
        EdgeModel = walk.Integer(74, EdgeModel);
        EdgeStyle = walk.Integer(91, EdgeStyle);
        (IntersectionColorId, IntersectionColorValue) =
            walk.Color(64, 422, IntersectionColorId, IntersectionColorValue);
        (ObscuredColorId, ObscuredColorValue) = walk.Color(65, 423, ObscuredColorId, ObscuredColorValue);
        ObscuredLineType = walk.Integer(75, ObscuredLineType);
        IntersectionLineType = walk.Integer(175, IntersectionLineType);
        CreaseAngle = walk.Number(42, CreaseAngle);
        EdgeModifiers = walk.Integer(92, EdgeModifiers);
        (EdgeColorId, EdgeColorValue) = walk.Color(66, 424, EdgeColorId, EdgeColorValue);
        EdgeOpacity = walk.Number(43, EdgeOpacity);
        EdgeWidth = walk.Integer(76, EdgeWidth);
        EdgeOverhang = walk.Integer(77, EdgeOverhang);
        EdgeJitter = walk.Integer(78, EdgeJitter);
        (SilhouetteColorId, SilhouetteColorValue) = walk.Color(67, 425, SilhouetteColorId, SilhouetteColorValue);
        SilhouetteWidth = walk.Integer(79, SilhouetteWidth);
        HaloGap = walk.Integer(170, HaloGap);
        IsolineCount = walk.Integer(171, IsolineCount);
        HidePrecision = walk.Boolean(290, HidePrecision);
    }

    private void ExchangeDisplay(VisualStyleWalk walk, ObjectExchange fields)
    {
        if (Form == 0)
        {
            StyleApplies = fields.Int32(174, StyleApplies);
        }

        ExchangeDisplay(walk);
        if (Form == 0)
        {
            IsInternal = fields.Bool(291, IsInternal);
            Reserved = fields.Double(45, Reserved);
        }
    }

    private void ExchangeDisplay(VisualStyleWalk walk)
    {
        DisplaySettings = walk.Integer(93, DisplaySettings);
        Brightness = walk.Number(44, Brightness);
        ShadowType = walk.Integer(173, ShadowType);
    }
}
