using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// Makes the entities that show a dimension out of its points and its style, for dimensions that have no block. The
/// variables of the style are those of the DXF reference, "DIMSTYLE".
/// </summary>
internal sealed partial class DimensionGraphics
{
    private const double SmallestDistance = 1e-9;

    private readonly CadDimensionBase _dimension;
    private readonly DimensionStyle _style;
    private readonly DimensionPen _pen;
    private readonly string _text;
    private readonly Vec2 _textSize;

    private DimensionGraphics(CadDimensionBase dimension, DimensionStyle style, Func<CadMText, Bounds2> measure)
    {
        _dimension = dimension;
        _style = style;
        _pen = new DimensionPen(dimension);
        _text = DimensionText.Of(dimension, style);
        _textSize = SizeOf(measure);
    }

    private CadDimensionStyleTable Values => _style.Values;

    private double Arrow => _style.ArrowSize;

    private double Gap => _style.Gap;

    private double ExtensionOffset => Values.Dimexo * _style.Scale;

    private double ExtensionBeyond => Values.Dimexe * _style.Scale;

    private double Horizontal => -Angles.Radians(_dimension.HorizontalDirection);

    private bool HasText => _text.Length > 0;

    private bool HasTicks => _style.TickSize > 0;

    /// <summary>Gets whether the text has a place that the dimension states.</summary>
    private bool HasPlace => _dimension.MiddleOfTextPoint is not { X: 0, Y: 0 };

    private Vec2 StoredPlace => new(_dimension.MiddleOfTextPoint.X, _dimension.MiddleOfTextPoint.Y);

    /// <summary>Returns the entities; none for a dimension whose points are not finite or make no figure.</summary>
    /// <param name="dimension">The dimension.</param>
    /// <param name="style">Its style.</param>
    /// <param name="measure">Measures a text in its own plane.</param>
    internal static List<CadEntityBase> Create(
        CadDimensionBase dimension, DimensionStyle style, Func<CadMText, Bounds2> measure)
    {
        var graphics = new DimensionGraphics(dimension, style, measure);
        switch (dimension)
        {
            case CadAlignedDimension linear:
                graphics.DrawLinear(linear);
                break;
            case Cad2LineAngularDimension angle:
                graphics.DrawAngle(angle);
                break;
            case CadAngularDimension angle:
                graphics.DrawAngle(angle);
                break;
            case CadArcLengthDimension arc:
                graphics.DrawArcLength(arc);
                break;
            case CadRadialDimension radius:
                graphics.DrawRadius(radius);
                break;
            case CadDiametricDimension diameter:
                graphics.DrawDiameter(diameter);
                break;
            case CadJoggedDimension jogged:
                graphics.DrawJogged(jogged);
                break;
            case CadDimensionOrdinate ordinate:
                graphics.DrawOrdinate(ordinate);
                break;
        }

        return graphics._pen.Entities;
    }

    private Vec2 SizeOf(Func<CadMText, Bounds2> measure)
    {
        if (!HasText)
        {
            return default;
        }

        CadMText text = TextAt(default, 0);
        Bounds2 box = measure(text);
        bool isTall = _text.Contains("\\P", StringComparison.Ordinal)
            || _text.Contains("\\S", StringComparison.Ordinal);
        bool isKnown = !box.IsEmpty && box.IsFinite;
        return new Vec2(isKnown ? box.Width : 0, isKnown && isTall ? box.Height : _style.TextHeight);
    }

    private Label LabelAt(Vec2 middle, double rotation) => new(middle, rotation, _textSize.X, _textSize.Y);

    /// <summary>Returns the rotation of the text: level, or along a direction so that it is read from below or from
    /// the right.</summary>
    private double RotationOf(Vec2 along, bool isLevel)
    {
        if (_dimension.TextRotation != 0)
        {
            return Horizontal + Angles.Radians(_dimension.TextRotation);
        }

        if (isLevel)
        {
            return Horizontal;
        }

        double angle = Math.IEEERemainder(DimensionArc.AngleOf(along) - Horizontal, Math.Tau);
        const double tolerance = 1e-6;
        angle += angle > (Math.PI / 2) + tolerance ? -Math.PI : angle <= (-Math.PI / 2) + tolerance ? Math.PI : 0;
        return Horizontal + angle;
    }

    /// <summary>Returns how far the middle of a text that runs along its line is above it.</summary>
    private double LiftOf(double rotation, Vec2 along)
    {
        bool isAlong = Math.Abs(Vec2.Cross(Vec2.Polar(rotation), along)) < 1e-6;
        double above = Gap + (_textSize.Y / 2);
        return Values.Dimtad switch
        {
            0 => Values.Dimtvp * _style.TextHeight,
            _ when !isAlong => 0,
            4 => -above,
            _ => above,
        };
    }

    private CadMText TextAt(Vec2 at, double rotation)
    {
        CadMText text = _pen.Text(_text, at, rotation, _style.TextHeight, _style.TextStyle);
        text.LineSpacingStyle = _dimension.LineSpacingStyle;
        text.LineSpacingFactor = _dimension.LineSpacingFactor > 0 ? _dimension.LineSpacingFactor : 1;
        return text;
    }

    /// <summary>What fits between the extension lines: both, text or arrowheads, by $DIMTIX and $DIMATFIT.</summary>
    private Fitting FitInto(double length, double width)
    {
        double text = HasText ? width + (2 * Gap) : 0;
        double arrows = HasTicks ? 0 : 2 * Arrow;
        if (text + arrows <= length)
        {
            return new Fitting(true, true);
        }

        bool textFits = text <= length;
        bool arrowsFit = HaveRoom(length);
        return Values.Dimatfit switch
        {
            _ when Values.Dimtix != 0 => new Fitting(HasTicks, true),
            0 => new Fitting(HasTicks, false),
            1 => new Fitting(HasTicks, textFits),
            2 => new Fitting(arrowsFit, false),
            _ => textFits ? new Fitting(HasTicks, true) : new Fitting(arrowsFit, false),
        };
    }

    /// <summary>What fits where the text has its place.</summary>
    private Fitting FitAround(bool isTextInside, double length, double width)
    {
        bool isFree = HasTicks || (Values.Dimatfit != 0 && HaveRoom(length));
        bool both = HasTicks || width + (2 * Gap) + (2 * Arrow) <= length;
        return new Fitting(isTextInside ? both : isFree, isTextInside);
    }

    private bool HaveRoom(double length) => HasTicks || 3 * Arrow <= length;

    private void UseLine()
    {
        (_pen.Color, _pen.LineWeight, _pen.LineType) = (Values.Dimclrd, Values.Dimlwd, _style.LineType);
    }

    private void UseExtension(bool isFirst)
    {
        string type = isFirst ? _style.FirstExtensionType : _style.SecondExtensionType;
        (_pen.Color, _pen.LineWeight, _pen.LineType) = (Values.Dimclre, Values.Dimlwe, type);
    }

    /// <summary>Draws what is at the end of a dimension line, with its tip there.</summary>
    private void DrawEnd(DimensionArrow arrow, Vec2 tip, Vec2 direction)
    {
        UseLine();
        if (HasTicks)
        {
            Vec2 half = (direction + direction.Left) * _style.TickSize;
            _pen.Line(tip - half, tip + half);
            return;
        }

        _pen.LineType = DimensionStyle.ByBlock;
        arrow.Draw(_pen, tip, direction, Arrow);
        UseLine();
    }

    /// <summary>Draws an extension line from a measured point to its end of the dimension line and beyond.</summary>
    private void DrawExtension(Vec2 measured, Vec2 end, bool isFirst, double beyond = 0)
    {
        bool isSuppressed = (isFirst ? Values.Dimse1 : Values.Dimse2) != 0;
        double length = (end - measured).Length;
        if (isSuppressed || length < SmallestDistance)
        {
            return;
        }

        UseExtension(isFirst);
        Vec2 along = (end - measured).Unit();
        double start = ExtensionOffset;
        if (Values.Dimfxlon != 0)
        {
            start = Math.Max(start, length - (Values.Dimfxl * _style.Scale));
        }

        _pen.Line(measured + (along * start), end + (along * Math.Max(beyond, ExtensionBeyond)));
    }

    /// <summary>Draws a line except for what the text covers.</summary>
    private void DrawAround(in Label label, Vec2 from, Vec2 to)
    {
        (double enter, double leave) = HasText ? label.Clip(from, to, Gap) : (1, 0);
        if (enter >= leave)
        {
            _pen.Line(from, to);
            return;
        }

        if (enter > 0)
        {
            _pen.Line(from, Vec2.Lerp(from, to, enter));
        }

        if (leave < 1)
        {
            _pen.Line(Vec2.Lerp(from, to, leave), to);
        }
    }

    private void DrawText(in Label label)
    {
        if (!HasText)
        {
            return;
        }

        UseLine();
        if (_style.HasFrame)
        {
            ReadOnlySpan<Vec2> corners = label.Corners(Gap);
            _pen.Polyline(corners, [0, 0, 0, 0], 0, CadLwPolylineFlag.Closed);
        }

        CadMText text = TextAt(label.Middle, label.Rotation);
        if (Values.Dimtfill != 0)
        {
            text.BackgroundFillSetting = Values.Dimtfill == 1 ? CadFillSetting.WindowColor
                : CadFillSetting.FillColor;
            text.BackgroundColorId = Values.Dimtfillclr;
            text.FillBoxScale = 1;
        }

        _pen.Color = Values.Dimclrt;
        _pen.Add(text);
    }

    /// <summary>Whether arrowheads and text are between the extension lines.</summary>
    private readonly record struct Fitting(bool HasArrowsInside, bool HasTextInside);

    /// <summary>The box of the text.</summary>
    private readonly record struct Label(Vec2 Middle, double Rotation, double Width, double Height)
    {
        // The gap above a line that a text is on must not count as covered.
        private const double CoveredGap = 0.9;

        internal Vec2 Along => Vec2.Polar(Rotation);

        internal Vec2 Up => Along.Left;

        /// <summary>Returns half of the extent along a direction.</summary>
        internal double ReachAlong(Vec2 direction) =>
            (Math.Abs(Vec2.Dot(Along, direction)) * Width / 2) + (Math.Abs(Vec2.Dot(Up, direction)) * Height / 2);

        internal bool Covers(Vec2 point, double gap)
        {
            Vec2 way = point - Middle;
            return Math.Abs(Vec2.Dot(way, Along)) <= (Width / 2) + gap
                && Math.Abs(Vec2.Dot(way, Up)) <= (Height / 2) + (gap * CoveredGap);
        }

        /// <summary>Returns the part of a line that the box and its gap cover, as parameters of the line.</summary>
        internal (double Enter, double Leave) Clip(Vec2 from, Vec2 to, double gap)
        {
            (double enter, double leave) = (0, 1);
            Narrow(Along, (Width / 2) + gap, ref enter, ref leave, from, to);
            Narrow(Up, (Height / 2) + (gap * CoveredGap), ref enter, ref leave, from, to);
            return (enter, leave);
        }

        internal Vec2[] Corners(double gap)
        {
            Vec2 x = Along * ((Width / 2) + gap);
            Vec2 y = Up * ((Height / 2) + gap);
            return [Middle - x - y, Middle + x - y, Middle + x + y, Middle - x + y];
        }

        private void Narrow(Vec2 axis, double half, ref double enter, ref double leave, Vec2 from, Vec2 to)
        {
            double start = Vec2.Dot(from - Middle, axis);
            double step = Vec2.Dot(to - from, axis);
            if (Math.Abs(step) < SmallestDistance)
            {
                leave = Math.Abs(start) < half ? leave : 0;
                return;
            }

            double first = (-half - start) / step;
            double second = (half - start) / step;
            enter = Math.Max(enter, Math.Min(first, second));
            leave = Math.Min(leave, Math.Max(first, second));
        }
    }
}
