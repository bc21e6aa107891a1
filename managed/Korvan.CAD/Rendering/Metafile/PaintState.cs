using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>How lines or edges look. What no element has set is null: its default depends on the picture.</summary>
internal struct LineState
{
    internal int Bundle;
    internal DashType? Type;
    internal double? Width;
    internal CgmColor? Color;
    internal LineCapIndicator Cap;
    internal JoinIndicator Join;

    /// <summary>Where the dashes begin, in parts of their period.</summary>
    internal double DashOffset;
}

/// <summary>How markers look.</summary>
internal struct MarkerState
{
    internal int Bundle;
    internal int? Type;
    internal double? Size;
    internal CgmColor? Color;
}

/// <summary>How texts look.</summary>
internal struct TextState
{
    internal int Bundle;
    internal int? Font;
    internal double? Expansion;
    internal double? Spacing;
    internal CgmColor? Color;
    internal double? Height;
    internal CharacterOrientation? Orientation;
    internal TextPath.Type Path;
    internal TextAlignment? Alignment;
    internal RestrictedTextType.Type Restriction;

    internal readonly double HeightIn(in PictureFrame frame) => System.Math.Abs(Height ?? frame.Longest * PictureFrame.DefaultSizeShare);
}

/// <summary>How areas are filled.</summary>
internal struct FillState
{
    internal int Bundle;
    internal InteriorStyle.Style? Style;
    internal CgmColor? Color;
    internal int? Hatch;
    internal int? Pattern;
    internal CgmPoint? Reference;
    internal PatternSize? PatternSize;
    internal InterpolatedInterior? Gradient;
}

/// <summary>Attributes that a picture saves and restores by name (ISO/IEC 8632-1, 7.4.11).</summary>
internal sealed class PaintState
{
    internal LineState Line;
    internal LineState Edge;
    internal MarkerState Marker;
    internal TextState Text;
    internal FillState Fill;
    internal bool EdgeIsVisible;
    internal double MitreLimit = 32767;
    internal CgmColor? Auxiliary;
    internal bool IsTransparent = true;
    internal CgmColor? TransparentCell;
    internal bool IsClipping = true;
    internal ClipRectangle? Clip;

    /// <summary>The attributes that bundles give, by the numbers of their flags.</summary>
    internal HashSet<AspectSourceFlags.ASFType> Bundled { get; private set; } = [];

    internal PaintState Clone()
    {
        var copy = (PaintState)MemberwiseClone();
        copy.Bundled = [.. Bundled];
        return copy;
    }
}

/// <summary>What holds for one picture: its coordinates, its tables, and the attributes at this place.</summary>
internal sealed class PictureState
{
    internal VdcExtent? Extent;
    internal ScalingMode? Scaling;
    internal CgmColor? Background;
    internal DeviceViewport? Viewport;
    internal DeviceViewportSpecificationMode? ViewportMode;
    internal bool HasRealCoordinates;
    internal bool HasDirectColors;

    /// <summary>Bits of a component, and of a number, where a tile states none of its own.</summary>
    internal int ColorBits = 8;
    internal int ColorIndexBits = 8;
    internal SpecificationMode LineWidthMode = SpecificationMode.Scaled;
    internal SpecificationMode EdgeWidthMode = SpecificationMode.Scaled;
    internal SpecificationMode MarkerSizeMode = SpecificationMode.Scaled;
    internal SpecificationMode InteriorMode = SpecificationMode.Absolute;

    internal PaintState Paint { get; set; } = new();

    internal List<string> Fonts { get; private set; } = [];

    internal Dictionary<int, Rgba> Colors { get; private set; } = [];

    internal Dictionary<int, LineRepresentation> LineBundles { get; private set; } = [];

    internal Dictionary<int, EdgeRepresentation> EdgeBundles { get; private set; } = [];

    internal Dictionary<int, MarkerRepresentation> MarkerBundles { get; private set; } = [];

    internal Dictionary<int, TextRepresentation> TextBundles { get; private set; } = [];

    internal Dictionary<int, FillRepresentation> FillBundles { get; private set; } = [];

    internal Dictionary<int, PatternTable> Patterns { get; private set; } = [];

    internal Dictionary<int, HatchStyleDefinition> Hatches { get; private set; } = [];

    internal Dictionary<int, LineAndEdgeTypeDefinition> LineTypes { get; private set; } = [];

    /// <summary>How texts look here, with what their bundle gives.</summary>
    internal TextState TextLook()
    {
        TextState look = Paint.Text;
        if (TextBundles.TryGetValue(look.Bundle, out TextRepresentation? bundle))
        {
            look.Font = Paint.Bundled.Contains(AspectSourceFlags.ASFType.TextFontIndex) ? bundle.FontIndex : look.Font;
            look.Expansion = Paint.Bundled.Contains(AspectSourceFlags.ASFType.CharacterExpansionFactor) ? bundle.ExpansionFactor : look.Expansion;
            look.Spacing = Paint.Bundled.Contains(AspectSourceFlags.ASFType.CharacterSpacing) ? bundle.Spacing : look.Spacing;
            look.Color = Paint.Bundled.Contains(AspectSourceFlags.ASFType.TextColour) ? bundle.Color : look.Color;
        }

        return look;
    }

    /// <summary>The name that the file gives the font of a look; empty where it gives none.</summary>
    internal string FontName(in TextState look)
    {
        int index = look.Font ?? 1;
        return index >= 1 && index <= Fonts.Count ? Fonts[index - 1] : "";
    }

    /// <summary>The state that a picture begins with: the defaults, and tables of its own.</summary>
    internal PictureState Clone()
    {
        var copy = (PictureState)MemberwiseClone();
        copy.Paint = Paint.Clone();
        copy.Fonts = [.. Fonts];
        copy.Colors = new(Colors);
        copy.LineBundles = new(LineBundles);
        copy.EdgeBundles = new(EdgeBundles);
        copy.MarkerBundles = new(MarkerBundles);
        copy.TextBundles = new(TextBundles);
        copy.FillBundles = new(FillBundles);
        copy.Patterns = new(Patterns);
        copy.Hatches = new(Hatches);
        copy.LineTypes = new(LineTypes);
        return copy;
    }
}
