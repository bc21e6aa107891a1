using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Line or edge attributes. Unset ones are null: their defaults depend on the picture.</summary>
internal struct LineState
{
    internal int Bundle;
    internal DashType? Type;
    internal double? Width;
    internal CgmColor? Color;
    internal LineCapIndicator Cap;
    internal JoinIndicator Join;

    /// <summary>The start of the dash pattern as a fraction of its length.</summary>
    internal double DashOffset;
}

/// <summary>Marker attributes.</summary>
internal struct MarkerState
{
    internal int Bundle;
    internal int? Type;
    internal double? Size;
    internal CgmColor? Color;
}

/// <summary>Text attributes.</summary>
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

    internal readonly double HeightIn(in PictureFrame frame) =>
        System.Math.Abs(Height ?? frame.LongerSide * PictureFrame.DefaultSizeShare);
}

/// <summary>Fill attributes.</summary>
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
    /// <summary>The bundle index by default, in each of the tables (ISO/IEC 8632-1).</summary>
    private const int FirstBundle = 1;

    internal LineState Line = new() { Bundle = FirstBundle };
    internal LineState Edge = new() { Bundle = FirstBundle };
    internal MarkerState Marker = new() { Bundle = FirstBundle };
    internal TextState Text = new() { Bundle = FirstBundle };
    internal FillState Fill = new() { Bundle = FirstBundle };
    internal bool EdgeIsVisible;
    internal double MitreLimit = 32767;
    internal CgmColor? Auxiliary;
    internal bool IsTransparent = true;
    internal CgmColor? TransparentCell;
    internal bool IsClipping = true;
    internal ClipRectangle? Clip;

    /// <summary>The attributes whose aspect source flag is bundled.</summary>
    internal HashSet<ASF> Bundled { get; private set; } = [];

    internal PaintState Clone()
    {
        var copy = (PaintState)MemberwiseClone();
        copy.Bundled = [.. Bundled];
        return copy;
    }
}

/// <summary>The state of one picture: its coordinates, its tables, and the current attributes.</summary>
internal sealed class PictureState
{
    internal VdcExtent? Extent;
    internal ScalingMode? Scaling;
    internal CgmColor? Background;
    internal DeviceViewport? Viewport;
    internal DeviceViewportSpecificationMode? ViewportMode;
    internal bool HasRealCoordinates;
    internal bool HasDirectColors;

    /// <summary>Bits of a colour component, and of a colour index, of tiles without a precision of their own.</summary>
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

    /// <summary>The text attributes with those of the bundle.</summary>
    internal TextState CurrentText()
    {
        TextState style = Paint.Text;
        if (TextBundles.TryGetValue(style.Bundle, out TextRepresentation? bundle))
        {
            HashSet<ASF> bundled = Paint.Bundled;
            style.Font = bundled.Contains(ASF.TextFontIndex) ? bundle.FontIndex : style.Font;
            style.Expansion = bundled.Contains(ASF.CharacterExpansionFactor) ? bundle.ExpansionFactor : style.Expansion;
            style.Spacing = bundled.Contains(ASF.CharacterSpacing) ? bundle.Spacing : style.Spacing;
            style.Color = bundled.Contains(ASF.TextColour) ? bundle.Color : style.Color;
        }

        return style;
    }

    /// <summary>The font name of text attributes; empty where the font list has none.</summary>
    internal string FontName(in TextState style)
    {
        int index = style.Font ?? 1;
        return index >= 1 && index <= Fonts.Count ? Fonts[index - 1] : "";
    }

    /// <summary>The initial state of a picture: the defaults, with tables of its own.</summary>
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
