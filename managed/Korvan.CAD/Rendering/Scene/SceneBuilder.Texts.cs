using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Single-line and multi-line text, attributes and their definitions.</content>
internal sealed partial class SceneBuilder
{
    private const int InvisibleAttribute = 1;
    private const int ConstantAttribute = 2;
    private const int BackwardText = 2;
    private const int UpsideDownText = 4;

    private void DrawText(CadText text, string shown, in Pen pen, BlockContext context)
    {
        if (string.IsNullOrWhiteSpace(shown))
        {
            return;
        }

        StyleInfo used = tables.Style(text.StyleType);
        double height = text.TextHeight > 0 ? text.TextHeight : used.FixedHeight > 0 ? used.FixedHeight : tables.Settings.TextSize;
        TextPainter.Draw(
            canvas,
            new SingleLine
            {
                Text = shown,
                Font = used.Font,
                First = V(text.FirstAlignment),
                Second = V(text.SecondAlignment),
                Height = height,
                WidthFactor = text.ScaleX,
                Rotation = Radians(text.TextRotation),
                Oblique = Radians(text.ObliqueAngle),
                Backward = (text.TextGenerationFlags & BackwardText) != 0,
                UpsideDown = (text.TextGenerationFlags & UpsideDownText) != 0,
                Horizontal = (HorizontalAlign)Math.Clamp((int)text.HorizontalAlignment, 0, 5),
                Vertical = (VerticalAlign)Math.Clamp((int)text.VerticalAlignment, 0, 3),
                ToleranceSymbols = used.IsToleranceFont,
            },
            InObject(context, text.ExtrusionDirection),
            pen);
    }

    private void DrawAttribute(CadAttrib attribute, in Pen pen, BlockContext context)
    {
        if (IsAttributeShown(attribute.AttFlags))
        {
            DrawText(attribute, attribute.DefaultValue, pen, context);
        }
    }

    /// <summary>A definition shows its tag in the drawing where it stands; inside of a reference only constants show.</summary>
    private void DrawAttributeDefinition(CadAttDef definition, in Pen pen, BlockContext context)
    {
        bool constant = (definition.AttFlags & ConstantAttribute) != 0;
        if (context.BlockName.Length > 0 && !constant)
        {
            return;
        }

        if (IsAttributeShown(definition.AttFlags))
        {
            DrawText(definition, constant ? definition.DefaultValue : definition.DefinitionTagString, pen, context);
        }
    }

    private bool IsAttributeShown(int flags) => tables.Settings.AttributeMode switch
    {
        0 => false,
        2 => true,
        _ => (flags & InvisibleAttribute) == 0,
    };

    private void DrawMText(CadMText text, in Pen pen, LayerInfo layer, BlockContext context)
    {
        StyleInfo used = tables.Style(text.TextStyleName);
        double height = text.InitialTextHeight > 0 ? text.InitialTextHeight : tables.Settings.TextSize;
        MTextFormat start = StartFormat(used, height);
        double spacing = text.LineSpacingFactor is > 0 and < 100 ? text.LineSpacingFactor : 1;
        MTextColumns columns = MTextColumns.Read(text);
        var frame = new MTextFrame(
            text.ReferenceRectangleWidth,
            (int)text.AttachmentPoint,
            spacing,
            text.LineSpacingStyle == CadLineSpacing.Exact,
            columns.Count,
            columns.Width,
            columns.Gutter,
            columns.Height);
        MTextLayout layout = MTextLayout.Create(canvas.Engine, MTextParser.Parse(text.Text, start), frame, height);
        Affine3 map = context.Map * MTextPlane(text);
        DrawBackground(text, layout, height, map, pen, layer, context);
        TextPainter.Draw(canvas, layout, map, pen, color => InlineColorOf(color, layer, context));
    }

    private static MTextFormat StartFormat(StyleInfo style, double height) => new(
        style.Font, height, style.WidthFactor, style.ObliqueDegrees, 1, default, StackAlign.Baseline, false, false, false, style.IsToleranceFont);

    private Rgba InlineColorOf(InlineColor color, LayerInfo layer, BlockContext context) =>
        pens.ColorOf(color.IsTrueColor ? new DrawingColor(0, color.Value) : new DrawingColor(color.Value), layer, context);

    /// <summary>
    /// The text's own axes: its direction vector where it has one, else the turned x axis of the world, which holds
    /// even for text that is seen from below; only a plane that stands on that axis asks for its object axes.
    /// </summary>
    private static Affine3 MTextPlane(CadMText text)
    {
        Affine3 ocs = Ocs.ToWorld(V(text.ExtrusionDirection));
        Vec3 direction = V(text.TextDirection);
        if (direction == default || !direction.IsFinite)
        {
            (double sin, double cos) = Math.SinCos(Radians(text.TextRotation));
            direction = new Vec3(cos, sin, 0);
        }

        if (Vec3.Cross(ocs.AxisZ, direction).Length < 1e-9 * direction.Length)
        {
            direction = ocs.AxisX;
        }

        Vec3 x = direction.Unit();
        return new Affine3(x, Vec3.Cross(ocs.AxisZ, x).Unit(), ocs.AxisZ, V(text.InsertionPoint));
    }

    private void DrawBackground(
        CadMText text, MTextLayout layout, double height, in Affine3 map, in Pen pen, LayerInfo layer, BlockContext context)
    {
        int setting = (int)text.BackgroundFillSetting;
        bool filled = (setting & 3) != 0;
        bool framed = (setting & 16) != 0;
        if (!filled && !framed)
        {
            return;
        }

        double grow = (Math.Clamp(text.FillBoxScale, 1, 5) - 1) * height;
        (double left, double bottom, double right, double top) = layout.Box;
        var path = new PathPen(canvas.NewPath(), map);
        path.MoveTo(new Vec2(left - grow, bottom - grow));
        path.LineTo(new Vec2(right + grow, bottom - grow));
        path.LineTo(new Vec2(right + grow, top + grow));
        path.LineTo(new Vec2(left - grow, top + grow));
        path.Close();
        if (filled)
        {
            bool window = (setting & 2) != 0;
            Pen fill = pen;
            fill.Color = window
                ? style.Background
                : pens.ColorOf(new DrawingColor(text.BackgroundColorId, text.BackgroundColor), layer, context);
            canvas.Fill(fill, evenOdd: false);
        }

        if (framed)
        {
            canvas.Stroke(pen);
        }
    }
}
