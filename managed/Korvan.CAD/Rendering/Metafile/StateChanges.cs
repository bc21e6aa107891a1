using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Commands;
using ASF = Korvan.CAD.FileFormats.Cgm.Commands.AspectSourceFlags.ASFType;
using LineCapElement = Korvan.CAD.FileFormats.Cgm.Commands.LineCap;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>What each command that draws nothing changes of the state.</summary>
internal static class StateChanges
{
    private static readonly Dictionary<Type, Action<PictureState, Command>> Changes = Build();

    /// <summary>Applies a command; false when it changes no state.</summary>
    internal static bool Apply(PictureState state, Command command)
    {
        if (!Changes.TryGetValue(command.GetType(), out Action<PictureState, Command>? change))
        {
            return false;
        }

        change(state, command);
        return true;
    }

    private static Dictionary<Type, Action<PictureState, Command>> Build()
    {
        var changes = new Dictionary<Type, Action<PictureState, Command>>();
        AddPicture(changes);
        AddTables(changes);
        AddLines(changes);
        AddTexts(changes);
        AddAreas(changes);
        return changes;
    }

    private static void On<T>(Dictionary<Type, Action<PictureState, Command>> changes, Action<PictureState, T> change)
        where T : Command => changes.Add(typeof(T), (state, command) => change(state, (T)command));

    private static void AddPicture(Dictionary<Type, Action<PictureState, Command>> c)
    {
        On<VdcType>(c, static (s, x) => s.HasRealCoordinates = x.Value == VdcType.Type.Real);
        On<ColourSelectionMode>(c, static (s, x) => s.HasDirectColors = x.Value == ColourSelectionMode.Type.Direct);
        On<ColourPrecision>(c, static (s, x) => s.ColorBits = x.Precision);
        On<ColourIndexPrecision>(c, static (s, x) => s.ColorIndexBits = x.Precision);
        On<VdcExtent>(c, static (s, x) => s.Extent = x);
        On<ScalingMode>(c, static (s, x) => s.Scaling = x);
        On<BackgroundColour>(c, static (s, x) => s.Background = x.Color);
        On<DeviceViewport>(c, static (s, x) => s.Viewport = x);
        On<DeviceViewportSpecificationMode>(c, static (s, x) => s.ViewportMode = x);
        On<LineWidthSpecificationMode>(c, static (s, x) => s.LineWidthMode = x.Value);
        On<EdgeWidthSpecificationMode>(c, static (s, x) => s.EdgeWidthMode = x.Value);
        On<MarkerSizeSpecificationMode>(c, static (s, x) => s.MarkerSizeMode = x.Value);
        On<InteriorStyleSpecificationMode>(c, static (s, x) => s.InteriorMode = x.Value);
        On<ClipIndicator>(c, static (s, x) => s.Paint.IsClipping = x.IsClipping);
        On<ClipRectangle>(c, static (s, x) => s.Paint.Clip = x);
        On<Transparency>(c, static (s, x) => s.Paint.IsTransparent = x.IsTransparent);
        On<AuxiliaryColour>(c, static (s, x) => s.Paint.Auxiliary = x.Color);
        On<TransparentCellColour>(c, static (s, x) => s.Paint.TransparentCell = x.IsActive ? x.Color : null);
        On<MitreLimit>(c, static (s, x) => s.Paint.MitreLimit = x.Limit);
    }

    private static void AddTables(Dictionary<Type, Action<PictureState, Command>> c)
    {
        On<FontList>(c, static (s, x) => Replace(s.Fonts, x.Fonts));
        On<ColourTable>(c, static (s, x) =>
        {
            for (int i = 0; i < x.Colors.Count; i++)
            {
                Color color = x.Colors[i].Color;
                s.Colors[x.StartIndex + i] = new Rgba(color.R, color.G, color.B);
            }
        });
        On<LineRepresentation>(c, static (s, x) => s.LineBundles[x.BundleIndex] = x);
        On<EdgeRepresentation>(c, static (s, x) => s.EdgeBundles[x.BundleIndex] = x);
        On<MarkerRepresentation>(c, static (s, x) => s.MarkerBundles[x.BundleIndex] = x);
        On<TextRepresentation>(c, static (s, x) => s.TextBundles[x.BundleIndex] = x);
        On<FillRepresentation>(c, static (s, x) => s.FillBundles[x.BundleIndex] = x);
        On<PatternTable>(c, static (s, x) => s.Patterns[x.Index] = x);
        On<HatchStyleDefinition>(c, static (s, x) => s.Hatches[x.HatchNumber] = x);
        On<LineAndEdgeTypeDefinition>(c, static (s, x) => s.LineTypes[x.TypeIndex] = x);
        On<AspectSourceFlags>(c, static (s, x) => SetSources(s.Paint, x));
    }

    private static void AddLines(Dictionary<Type, Action<PictureState, Command>> c)
    {
        On<LineBundleIndex>(c, static (s, x) => s.Paint.Line.Bundle = x.Index);
        On<LineType>(c, static (s, x) => s.Paint.Line.Type = x.Type);
        On<LineWidth>(c, static (s, x) => s.Paint.Line.Width = x.Width);
        On<LineColour>(c, static (s, x) => s.Paint.Line.Color = x.Color);
        On<LineCapElement>(c, static (s, x) => s.Paint.Line.Cap = x.Cap);
        On<LineJoin>(c, static (s, x) => s.Paint.Line.Join = x.Join);
        On<LineTypeInitialOffset>(c, static (s, x) => s.Paint.Line.DashOffset = x.Offset);
        On<EdgeBundleIndex>(c, static (s, x) => s.Paint.Edge.Bundle = x.Index);
        On<EdgeType>(c, static (s, x) => s.Paint.Edge.Type = x.Type);
        On<EdgeWidth>(c, static (s, x) => s.Paint.Edge.Width = x.Width);
        On<EdgeColour>(c, static (s, x) => s.Paint.Edge.Color = x.Color);
        On<EdgeCap>(c, static (s, x) => s.Paint.Edge.Cap = x.Cap);
        On<EdgeJoin>(c, static (s, x) => s.Paint.Edge.Join = x.Join);
        On<EdgeTypeInitialOffset>(c, static (s, x) => s.Paint.Edge.DashOffset = x.Offset);
        On<EdgeVisibility>(c, static (s, x) => s.Paint.EdgeIsVisible = x.IsVisible);
        On<MarkerBundleIndex>(c, static (s, x) => s.Paint.Marker.Bundle = x.Index);
        On<MarkerType>(c, static (s, x) => s.Paint.Marker.Type = x.Index);
        On<MarkerSize>(c, static (s, x) => s.Paint.Marker.Size = x.Size);
        On<MarkerColour>(c, static (s, x) => s.Paint.Marker.Color = x.Color);
    }

    private static void AddTexts(Dictionary<Type, Action<PictureState, Command>> c)
    {
        On<TextBundleIndex>(c, static (s, x) => s.Paint.Text.Bundle = x.Index);
        On<TextFontIndex>(c, static (s, x) => s.Paint.Text.Font = x.Index);
        On<CharacterExpansionFactor>(c, static (s, x) => s.Paint.Text.Expansion = x.Factor);
        On<CharacterSpacing>(c, static (s, x) => s.Paint.Text.Spacing = x.Spacing);
        On<TextColour>(c, static (s, x) => s.Paint.Text.Color = x.Color);
        On<CharacterHeight>(c, static (s, x) => s.Paint.Text.Height = x.Height);
        On<CharacterOrientation>(c, static (s, x) => s.Paint.Text.Orientation = x);
        On<TextPath>(c, static (s, x) => s.Paint.Text.Path = x.Value);
        On<TextAlignment>(c, static (s, x) => s.Paint.Text.Alignment = x);
        On<RestrictedTextType>(c, static (s, x) => s.Paint.Text.Restriction = x.Value);
    }

    private static void AddAreas(Dictionary<Type, Action<PictureState, Command>> c)
    {
        On<FillBundleIndex>(c, static (s, x) => s.Paint.Fill.Bundle = x.Index);
        On<InteriorStyle>(c, static (s, x) => s.Paint.Fill.Style = x.Value);
        On<FillColour>(c, static (s, x) => s.Paint.Fill.Color = x.Color);
        On<HatchIndex>(c, static (s, x) => s.Paint.Fill.Hatch = x.Index);
        On<PatternIndex>(c, static (s, x) => s.Paint.Fill.Pattern = x.Index);
        On<FillReferencePoint>(c, static (s, x) => s.Paint.Fill.Reference = x.Point);
        On<PatternSize>(c, static (s, x) => s.Paint.Fill.PatternSize = x);
        On<InterpolatedInterior>(c, static (s, x) => s.Paint.Fill.Gradient = x);
    }

    private static void SetSources(PaintState paint, AspectSourceFlags flags)
    {
        foreach (AspectSourceFlags.AspectSourceFlagsInfo info in flags.Infos)
        {
            (int first, int last) = Group(info.Type);
            for (int type = first; type <= last; type++)
            {
                if (info.Value == AspectSourceFlags.ASFValue.Bundled)
                {
                    paint.Bundled.Add((ASF)type);
                }
                else
                {
                    paint.Bundled.Remove((ASF)type);
                }
            }
        }
    }

    /// <summary>The range of flags of a group.</summary>
    private static (int First, int Last) Group(ASF type) => type switch
    {
        ASF.All => (0, (int)ASF.EdgeColour),
        ASF.AllLine => (0, (int)ASF.LineColour),
        ASF.AllMarker => ((int)ASF.MarkerType, (int)ASF.MarkerColour),
        ASF.AllText => ((int)ASF.TextFontIndex, (int)ASF.TextColour),
        ASF.AllFill => ((int)ASF.InteriorStyle, (int)ASF.PatternIndex),
        ASF.AllEdge => ((int)ASF.EdgeType, (int)ASF.EdgeColour),
        _ => ((int)type, (int)type),
    };

    private static void Replace(List<string> list, List<string> by)
    {
        list.Clear();
        list.AddRange(by);
    }
}
