using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <content>Dimensions with a straight dimension line, and those of coordinates.</content>
internal sealed partial class DimensionGraphics
{
    // Ways of $DIMTMOVE.
    private const int LineFollowsText = 0;
    private const int LeaderToText = 1;

    // Ways of $DIMJUST that put the text along an extension line.
    private const int OverFirst = 3;
    private const int OverSecond = 4;

    private void DrawLinear(CadAlignedDimension dimension)
    {
        Vec2 along = DimensionMeasure.DirectionOf(dimension, _pen);
        Vec2 extension = DimensionMeasure.ExtensionOf(dimension, along);
        (Vec2 p1, Vec2 p2) = (_pen.Flat(dimension.FirstExtensionPoint), _pen.Flat(dimension.SecondExtensionPoint));
        Vec2 on = _pen.Flat(dimension.DefinitionPoint);
        Vec2 Foot(Vec2 point) =>
            point + (extension * (Vec2.Cross(on - point, along) / Vec2.Cross(extension, along)));

        (Vec2 a, Vec2 b) = (Foot(p1), Foot(p2));
        along = Vec2.Dot(b - a, along) < 0 ? along * -1 : along;
        var line = new StraightLine(a, along, (b - a).Length);
        bool isOverFirst = HasText && Values.Dimjust == OverFirst;
        bool isOverSecond = HasText && Values.Dimjust == OverSecond;
        bool isOver = isOverFirst || isOverSecond;
        Vec2 over = isOverFirst ? p1 : p2;
        Vec2 foot = isOverFirst ? a : b;
        (Label label, Fitting fitting) = isOver
            ? (LabelOver(over, foot), new Fitting(HaveRoom(line.Length), true))
            : PlaceLabel(line, Vec2.Dot(on - p1, along.Left));
        DrawExtension(p1, a, isFirst: true, isOverFirst ? ReachPast(label, over, foot) : 0);
        DrawExtension(p2, b, isFirst: false, isOverSecond ? ReachPast(label, over, foot) : 0);
        UseLine();
        bool isAway = !isOver && IsAway(label, line);
        if (isAway && Values.Dimtmove == LeaderToText)
        {
            label = DrawTextLeader(label, line.At(line.Length / 2));
        }

        DrawSpan(line, label, fitting, isAway);
        if (!isAway && !fitting.HasTextInside)
        {
            DrawToText(line, label, fitting);
        }

        DrawText(label);
    }

    /// <summary>Places a text along an extension line, past its end.</summary>
    private Label LabelOver(Vec2 measured, Vec2 foot)
    {
        Vec2 outwards = (foot - measured).Unit();
        double rotation = RotationOf(outwards, isLevel: false);
        double half = LabelAt(default, rotation).ReachAlong(outwards);
        Vec2 lift = Vec2.Polar(rotation).Left * LiftOf(rotation, outwards);
        return LabelAt(HasPlace ? StoredPlace : foot + (outwards * (ExtensionBeyond + Gap + half)) + lift, rotation);
    }

    /// <summary>Returns how far an extension line reaches that has a text beside it.</summary>
    private double ReachPast(in Label label, Vec2 measured, Vec2 foot)
    {
        Vec2 outwards = (foot - measured).Unit();
        double at = Vec2.Dot(label.Middle - foot, outwards);
        return label.Covers(foot + (outwards * at), Gap) ? 0 : at + label.ReachAlong(outwards);
    }

    private bool IsAway(in Label label, in StraightLine line) =>
        HasText && HasPlace && Math.Abs(Vec2.Cross(line.Along, label.Middle - line.Start))
            > label.ReachAlong(line.Along.Left) + (2 * Gap);

    private (Label Label, Fitting Fitting) PlaceLabel(in StraightLine line, double side)
    {
        if (HasPlace)
        {
            double at = Vec2.Dot(StoredPlace - line.Start, line.Along);
            bool isInside = at >= 0 && at <= line.Length;
            double turn = RotationOf(line.Along, (isInside ? Values.Dimtih : Values.Dimtoh) != 0);
            Label stored = LabelAt(StoredPlace, turn);
            return (stored, FitAround(
                isInside && !IsAway(stored, line), line.Length, 2 * stored.ReachAlong(line.Along)));
        }

        Label inside = LabelAt(default, RotationOf(line.Along, Values.Dimtih != 0));
        Fitting fitting = FitInto(line.Length, 2 * inside.ReachAlong(line.Along));
        double rotation = fitting.HasTextInside ? inside.Rotation : RotationOf(line.Along, Values.Dimtoh != 0);
        double half = LabelAt(default, rotation).ReachAlong(line.Along);
        double end = HasTicks ? Gap : Arrow + Gap;
        double place = fitting switch
        {
            { HasTextInside: false, HasArrowsInside: true } => line.Length + Gap + half,
            { HasTextInside: false } => line.Length + (2 * Arrow) + Gap + half,
            _ => Values.Dimjust switch
            {
                1 => end + half,
                2 => line.Length - end - half,
                _ => line.Length / 2,
            },
        };
        double lift = LiftOf(rotation, line.Along);
        Vec2 up = Vec2.Polar(rotation).Left;
        const int outside = 2;
        bool isBelow = Values.Dimtad == outside && Vec2.Dot(up, line.Along.Left) * side < 0;
        return (LabelAt(line.At(place) + (up * (isBelow ? -lift : lift)), rotation), fitting);
    }

    /// <summary>Draws the dimension line between its extension lines, or from outside to them.</summary>
    private void DrawSpan(in StraightLine line, in Label label, Fitting fitting, bool isAway)
    {
        bool hasFirst = Values.Dimsd1 == 0;
        bool hasSecond = Values.Dimsd2 == 0;
        (Vec2 a, Vec2 b) = (line.At(0), line.At(line.Length));
        double middle = HasText && fitting.HasTextInside ? Vec2.Dot(label.Middle - a, line.Along) : line.Length / 2;
        bool hasInner = fitting.HasArrowsInside || Values.Dimtofl != 0 || isAway;
        (double from, double to) = fitting.HasArrowsInside
            ? (SetbackOf(_style.FirstArrow), line.Length - SetbackOf(_style.SecondArrow))
            : (0, line.Length);
        if (hasInner && hasFirst)
        {
            DrawAround(label, line.At(from), line.At(Math.Max(from, hasSecond ? to : middle)));
        }
        else if (hasInner && hasSecond)
        {
            DrawAround(label, line.At(middle), line.At(to));
        }

        bool isHidden = !fitting.HasArrowsInside && Values.Dimsoxd != 0;
        if (hasFirst && !isHidden)
        {
            DrawLineEnd(_style.FirstArrow, a, line.Along * -1, fitting.HasArrowsInside);
        }

        if (hasSecond && !isHidden)
        {
            DrawLineEnd(_style.SecondArrow, b, line.Along, fitting.HasArrowsInside);
        }
    }

    /// <summary>Draws an arrowhead that points outwards, or from outside with a piece of line at its foot.</summary>
    private void DrawLineEnd(DimensionArrow arrow, Vec2 tip, Vec2 outwards, bool isInside)
    {
        DrawEnd(arrow, tip, isInside ? outwards : outwards * -1);
        if (!isInside)
        {
            double foot = Math.Max(0, arrow.Setback * Arrow);
            _pen.Line(tip + (outwards * foot), tip + (outwards * (2 * Arrow)));
        }
    }

    private double SetbackOf(DimensionArrow arrow) =>
        HasTicks || arrow.IsStroke ? -Values.Dimdle * _style.Scale : arrow.Setback * Arrow;

    /// <summary>Draws the dimension line on to a text beside it, and below a text that is above the line.</summary>
    private void DrawToText(in StraightLine line, in Label label, Fitting fitting)
    {
        if (!HasText || (HasPlace && Values.Dimtmove > LineFollowsText))
        {
            return;
        }

        UseLine();
        double at = Vec2.Dot(label.Middle - line.Start, line.Along);
        bool isAfter = at > line.Length / 2;
        double outer = fitting.HasArrowsInside ? 0 : 2 * Arrow;
        double start = isAfter ? line.Length + outer : -outer;
        double half = label.ReachAlong(line.Along);
        double reach = label.Covers(line.At(at), Gap) ? -half - Gap : half;
        double end = isAfter ? at + reach : at - reach;
        if (isAfter ? end > start : end < start)
        {
            _pen.Line(line.At(start), line.At(end));
        }
    }

    /// <summary>Draws a leader to a text that was moved away; its place is then the near edge of the text.</summary>
    private Label DrawTextLeader(in Label label, Vec2 from)
    {
        Vec2 side = label.Along * (Vec2.Dot(label.Middle - from, label.Along) < 0 ? -1 : 1);
        Vec2 hook = label.Middle - (side * Gap);
        UseLine();
        _pen.Line(from, hook - (side * Arrow));
        _pen.Line(hook - (side * Arrow), hook);
        return label with { Middle = label.Middle + (side * (label.Width / 2)) };
    }

    private void DrawOrdinate(CadDimensionOrdinate dimension)
    {
        const int isAlongX = 64;
        Vec2 axis = Vec2.Polar(Horizontal);
        axis = (dimension.TypeOfDimension & isAlongX) != 0 ? axis.Left : axis;
        (Vec2 feature, Vec2 end) = (_pen.Flat(dimension.FeaturePoint), _pen.Flat(dimension.LeaderEndPoint));
        axis = Vec2.Dot(end - feature, axis) < 0 ? axis * -1 : axis;
        double reach = Vec2.Dot(end - feature, axis);
        UseLine();
        Vec2 start = feature + (axis * ExtensionOffset);
        if (Math.Abs(Vec2.Cross(axis, end - feature)) < SmallestDistance * Math.Max(1, reach))
        {
            _pen.Line(start, end);
        }
        else
        {
            Vec2 bend = feature + (axis * (reach - (4 * Arrow)));
            Vec2 back = end - (axis * (2 * Arrow));
            _pen.Line(start, bend);
            _pen.Line(bend, back);
            _pen.Line(back, end);
        }

        double rotation = RotationOf(axis, isLevel: false);
        Vec2 lifted = Vec2.Polar(rotation).Left * LiftOf(rotation, axis);
        Label label = LabelAt(
            HasPlace ? StoredPlace : end + (axis * (Gap + (_textSize.X / 2))) + lifted, rotation);
        bool isAbove = HasText && !label.Covers(end + (axis * Vec2.Dot(label.Middle - end, axis)), Gap);
        if (isAbove)
        {
            _pen.Line(end, end + (axis * (Vec2.Dot(label.Middle - end, axis) + label.ReachAlong(axis))));
        }

        DrawText(label);
    }

    /// <summary>A dimension line by its start.</summary>
    private readonly record struct StraightLine(Vec2 Start, Vec2 Along, double Length)
    {
        internal Vec2 At(double distance) => Start + (Along * distance);
    }
}
