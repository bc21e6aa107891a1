using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <content>Dimensions of angles and of arcs, whose dimension line is an arc.</content>
internal sealed partial class DimensionGraphics
{
    // Values of $DIMARCSYM.
    private const int SymbolBeforeText = 0;
    private const int SymbolAboveText = 1;
    private const double SymbolRadius = 14.0 / 15;
    private const int BisectionSteps = 40;

    private void DrawAngle(Cad2LineAngularDimension dimension)
    {
        DimensionArc arc = DimensionArc.Of(dimension, _pen);
        if (!(arc.Radius > 0))
        {
            return;
        }

        DrawRay(arc, _pen.Flat(dimension.FirstPoint), _pen.Flat(dimension.SecondPoint), isFirst: true);
        DrawRay(arc, _pen.Flat(dimension.ThirdPoint), _pen.Flat(dimension.DefinitionPoint), isFirst: false);
        DrawArc(arc);
    }

    private void DrawAngle(CadAngularDimension dimension)
    {
        DimensionArc arc = DimensionArc.Of(dimension, _pen);
        Vec2 first = _pen.Flat(dimension.FirstPoint);
        Vec2 second = _pen.Flat(dimension.SecondPoint);
        DrawRay(arc, first, first, isFirst: true);
        DrawRay(arc, second, second, isFirst: false);
        DrawArc(arc);
    }

    private void DrawArcLength(CadArcLengthDimension dimension)
    {
        DimensionArc arc = DimensionArc.Of(dimension, _pen);
        Vec2 first = _pen.Flat(dimension.FirstExtensionPoint);
        Vec2 second = _pen.Flat(dimension.SecondExtensionPoint);
        if (arc.Sweep < Math.PI / 2)
        {
            arc = DrawParallels(arc, first, second);
        }
        else
        {
            DrawRay(arc, first, first, isFirst: true);
            DrawRay(arc, second, second, isFirst: false);
        }

        if (DrawArc(arc) is Label label && HasText)
        {
            DrawArcSymbol(label);
        }
    }

    /// <summary>Draws the extension lines of an arc of less than a quarter, which are parallel, and returns the
    /// dimension line between them.</summary>
    private DimensionArc DrawParallels(in DimensionArc arc, Vec2 first, Vec2 second)
    {
        Vec2 along = Vec2.Polar(arc.Start + (arc.Sweep / 2));
        (Vec2 from, Vec2 to) = (arc.Crossing(first, along), arc.Crossing(second, along));
        DrawExtension(first, from, isFirst: true);
        DrawExtension(second, to, isFirst: false);
        bool isFirstAtStart = Vec2.Cross(first - arc.Center, second - arc.Center) > 0;
        (from, to) = isFirstAtStart ? (from, to) : (to, from);
        double start = DimensionArc.AngleOf(from - arc.Center);
        return arc with { Start = start, Sweep = Angles.Sweep(start, DimensionArc.AngleOf(to - arc.Center)) };
    }

    /// <summary>Draws the extension line of a leg of the angle: from the end of a measured line to the arc, unless
    /// the arc meets the line itself.</summary>
    private void DrawRay(in DimensionArc arc, Vec2 from, Vec2 to, bool isFirst)
    {
        if ((isFirst ? Values.Dimse1 : Values.Dimse2) != 0)
        {
            return;
        }

        Vec2 along = (to == from ? from - arc.Center : to - from).Unit();
        Vec2 start = arc.At(arc.Start) - arc.Center;
        Vec2 end = arc.At(arc.End) - arc.Center;
        bool isAtStart = Math.Abs(Vec2.Cross(along, start)) <= Math.Abs(Vec2.Cross(along, end));
        Vec2 ray = (isAtStart ? start : end).Unit();
        double near = Math.Min(Vec2.Dot(from - arc.Center, ray), Vec2.Dot(to - arc.Center, ray));
        double far = Math.Max(Vec2.Dot(from - arc.Center, ray), Vec2.Dot(to - arc.Center, ray));
        UseExtension(isFirst);
        if (far < arc.Radius)
        {
            double first = Math.Max(far, 0) + ExtensionOffset;
            _pen.Line(arc.Center + (ray * first), arc.Center + (ray * (arc.Radius + ExtensionBeyond)));
        }
        else if (near > arc.Radius)
        {
            _pen.Line(
                arc.Center + (ray * (near - ExtensionOffset)), arc.Center + (ray * (arc.Radius - ExtensionBeyond)));
        }
    }

    private Label? DrawArc(in DimensionArc arc)
    {
        if (!(arc.Radius > 0) || !double.IsFinite(arc.Radius))
        {
            return null;
        }

        (Label label, Fitting fitting) = PlaceLabel(arc);
        double step = 2 * Math.Asin(Math.Min(1, Arrow / (2 * arc.Radius)));
        UseLine();
        if (fitting.HasArrowsInside)
        {
            double first = HasTicks ? 0 : _style.FirstArrow.Setback * step;
            double second = HasTicks ? 0 : _style.SecondArrow.Setback * step;
            DrawAround(label, arc, arc.Start + first, arc.End - second);
        }
        else
        {
            DrawAround(label, arc, arc.Start - (2 * step), arc.Start - (_style.FirstArrow.Setback * step));
            DrawAround(label, arc, arc.End + (_style.SecondArrow.Setback * step), arc.End + (2 * step));
            if (Values.Dimtofl != 0)
            {
                DrawAround(label, arc, arc.Start, arc.End);
            }
        }

        double inwards = fitting.HasArrowsInside ? step : -step;
        DrawArcEnd(_style.FirstArrow, arc, arc.Start, inwards);
        DrawArcEnd(_style.SecondArrow, arc, arc.End, -inwards);
        DrawText(label);
        return label;
    }

    // The foot of an arrowhead is on the arc as well.
    private void DrawArcEnd(DimensionArrow arrow, in DimensionArc arc, double at, double toFoot)
    {
        Vec2 direction = (arc.At(at) - arc.At(at + toFoot)).Unit();
        DrawEnd(arrow, arc.At(at), direction == default ? Vec2.Polar(at).Left : direction);
    }

    private (Label Label, Fitting Fitting) PlaceLabel(in DimensionArc arc)
    {
        double middle = arc.Start + (arc.Sweep / 2);
        if (HasPlace)
        {
            Vec2 way = StoredPlace - arc.Center;
            double at = Angles.Sweep(arc.Start, DimensionArc.AngleOf(way));
            bool isBetween = at <= arc.Sweep;
            double rotation = RotationOf(way.Left, (isBetween ? Values.Dimtih : Values.Dimtoh) != 0);
            Label label = LabelAt(StoredPlace, rotation);
            bool isOnArc = Math.Abs(way.Length - arc.Radius) <= label.ReachAlong(way.Unit()) + (2 * Gap);
            double width = 2 * label.ReachAlong(way.Unit().Left);
            return (label, FitAround(isBetween && isOnArc, arc.Length, width));
        }

        Fitting fitting = FitInto(arc.Length, _textSize.X);
        double place = fitting.HasTextInside
            ? middle
            : arc.End + (((fitting.HasArrowsInside ? 0 : 2 * Arrow) + Gap + (_textSize.X / 2)) / arc.Radius);
        Vec2 along = Vec2.Polar(place).Left;
        double turn = RotationOf(along, (fitting.HasTextInside ? Values.Dimtih : Values.Dimtoh) != 0);
        Vec2 lifted = Vec2.Polar(turn).Left * LiftOf(turn, along);
        return (LabelAt(arc.At(place) + lifted, turn), fitting);
    }

    /// <summary>Draws a part of an arc except for what the text covers.</summary>
    private void DrawAround(in Label label, in DimensionArc arc, double from, double to)
    {
        double at = from + Angles.Sweep(from, DimensionArc.AngleOf(label.Middle - arc.Center));
        if (!HasText || !label.Covers(arc.At(at), Gap))
        {
            _pen.Arc(arc.Center, arc.Radius, from, to - from);
            return;
        }

        double reach = Math.Min(Math.PI, (label.Width + label.Height + (4 * Gap)) / arc.Radius);
        double before = EdgeOf(label, arc, at, -reach);
        double after = EdgeOf(label, arc, at, reach);

        // What is covered may begin before the part does.
        (before, after) = before > to ? (before - Math.Tau, after - Math.Tau) : (before, after);
        _pen.Arc(arc.Center, arc.Radius, from, Math.Min(before, to) - from);
        _pen.Arc(arc.Center, arc.Radius, Math.Max(after, from), to - Math.Max(after, from));
    }

    private double EdgeOf(in Label label, in DimensionArc arc, double inside, double reach)
    {
        (double covered, double free) = (inside, inside + reach);
        for (int i = 0; i < BisectionSteps; i++)
        {
            double middle = (covered + free) / 2;
            (covered, free) = label.Covers(arc.At(middle), Gap) ? (middle, free) : (covered, middle);
        }

        return free;
    }

    private void DrawArcSymbol(in Label label)
    {
        double radius = SymbolRadius * _style.TextHeight;
        Vec2? center = (int)Values.Dimarcsym switch
        {
            SymbolBeforeText => label.Middle - (label.Along * ((label.Width / 2) + radius)) - (label.Up * (radius / 2)),
            SymbolAboveText => label.Middle + (label.Up * ((label.Height / 2) - (radius / 2) + Gap)),
            _ => null,
        };
        if (center is Vec2 at)
        {
            _pen.Arc(at, radius, label.Rotation, Math.PI);
        }
    }
}
