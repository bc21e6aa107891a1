using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;
using Korvan.CAD.FileFormats.Cad.Model.Tables;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Multileaders and tables.</content>
internal sealed partial class SceneBuilder
{
    // Group code 170 of a multileader.
    private const int SplineLeader = 2;

    // Group code 93 of a leader line.
    private const int OwnSize = 16;
    private const int OwnArrowhead = 32;

    private const string TableBlock = "*T";

    void IGeometrySink.MultiLeader(CadMLeader leader)
    {
        (Pen pen, LayerInfo layer, BlockContext context, _) = _current;

        // "By block" inside of the entity is the entity's own colour.
        Pen entity = pen;
        Pen Own(int stored)
        {
            uint raw = unchecked((uint)stored);
            return (raw >> 24) == (RawColor.ByBlock >> 24)
                ? entity
                : _pens.Colored(entity, RawColor.Decode(raw), entity.Color.A, layer, context);
        }

        CadMLeaderContextData data = leader.ContextData;
        if (leader.Style.LeaderType != 0)
        {
            foreach (CadMLeaderNode branch in data.LeaderNodes)
            {
                DrawBranch(branch, leader, Own(leader.Style.LeaderColor), context);
            }
        }

        if (data.HasText && data.Text.Length > 0)
        {
            DrawLeaderText(leader, Own(data.TextColor), layer, context);
        }
        else if (data.HasBlock)
        {
            DrawLeaderBlock(leader, Own(data.Block.Color), layer, context);
        }
    }

    private void DrawLeaderBlock(CadMLeader leader, in Pen pen, LayerInfo layer, BlockContext context)
    {
        CadMLeaderBlock content = leader.ContextData.Block;
        if (!_tables.BlocksByRecord.TryGetValue(HandleOf(content.BlockRecordHandle), out BlockInfo? block))
        {
            return;
        }

        Cad3DPoint s = content.Scale;
        Affine3 map = context.Map * Affine3.Translation(content.Location.ToVec3()) * Ocs
            .ToWorld(content.Normal.ToVec3())
            * Affine3.RotationZ(content.Rotation) * Affine3.Scaling(NotZero(s.X), NotZero(s.Y), NotZero(s.Z))
            * Affine3.Translation(-block.Base);
        DrawBlock(block, map, layer, pen, context);
        BlockContext inside = context.Inside(block, map, layer, pen);
        foreach (CadAttDef definition in block.Entities.OfType<CadAttDef>())
        {
            MLeaderAttribute? attribute = leader.Style.BlockAttributes.Find(
                value => HandleOf(value.DefinitionHandle) == HandleOf(definition.ObjectHandle));
            if (attribute is not null)
            {
                Draw(TextOf(definition, attribute.Value), inside);
            }
        }
    }

    private static CadText TextOf(CadAttDef definition, string value) => new()
    {
        DefaultValue = value,
        LayerName = definition.LayerName,
        ColorId = definition.ColorId,
        ColorValue = definition.ColorValue,
        FirstAlignment = definition.FirstAlignment,
        SecondAlignment = definition.SecondAlignment,
        HorizontalAlignment = definition.HorizontalAlignment,
        VerticalAlignment = definition.VerticalAlignment,
        TextHeight = definition.TextHeight,
        TextRotation = definition.TextRotation,
        ScaleX = definition.ScaleX,
        ObliqueAngle = definition.ObliqueAngle,
        StyleType = definition.StyleType,
        TextGenerationFlags = definition.TextGenerationFlags,
        ExtrusionDirection = definition.ExtrusionDirection,
    };

    private static ulong HandleOf(string text) => HandleText.TryParse(text, out ulong handle) ? handle : 0;

    private void DrawBranch(CadMLeaderNode branch, CadMLeader leader, in Pen pen, BlockContext context)
    {
        Vec3 start = branch.LastLeaderLinePoint.ToVec3();
        bool isSideways = branch.AttachmentDirection == 0;
        Vec3 landing = isSideways && branch.DoglegLength > 0
            ? branch.DoglegVector.ToVec3().Unit() * branch.DoglegLength : default;
        bool isStraight = leader.Style.LeaderType != SplineLeader;
        bool hasLanding = isStraight && leader.Style is { IsLandingEnabled: true, IsDoglegEnabled: true };
        if (hasLanding && landing != default)
        {
            StrokeLine(start, start + landing, pen, context);
        }

        // Lines without a landing lead to where it would end.
        Vec3 end = hasLanding ? start : start + landing;
        foreach (CadMLeaderLine line in branch.LeaderLines)
        {
            if (line.Vertices.Count > 0)
            {
                DrawLeaderLine([.. line.Vertices.ConvertAll(ModelVectors.ToVec3), end], leader, line, pen, landing);
            }
        }

        if (leader.ContextData is { HasText: true, Text.Length: > 0 })
        {
            DrawTextLine(start + landing, isSideways, leader.ContextData, pen, context);
        }
    }

    private void StrokeLine(Vec3 from, Vec3 to, in Pen pen, BlockContext context)
    {
        var path = new PathPen(_canvas.NewPath(), context.Map);
        path.MoveTo(from);
        path.LineTo(to);
        _canvas.Stroke(pen);
    }

    /// <summary>Draws the line under, over or below the text that some attachments have, from where the leader
    /// ends.</summary>
    private void DrawTextLine(
        Vec3 end, bool isSideways, CadMLeaderContextData data, in Pen pen, BlockContext context)
    {
        const int bottomUnderlined = 5, topUnderlined = 6, allUnderlined = 8, withLine = 10;
        Vec3 along = data.TextDirection.ToVec3().Unit();
        (double left, double bottom, double right, double top) = LayoutOf(data, out _).Box;
        Vec3 way = end - data.TextLocation.ToVec3();
        double x = Vec3.Dot(way, along);
        if (isSideways)
        {
            bool isAtLeft = x < (left + right) / 2;
            if ((isAtLeft ? data.LeftAttachment : data.RightAttachment)
                is bottomUnderlined or topUnderlined or allUnderlined)
            {
                StrokeLine(end, end + (along * ((isAtLeft ? right : left) - x)), pen, context);
            }

            return;
        }

        double y = Vec3.Dot(way, Vec3.Cross(data.TextNormal.ToVec3().Unit(), along));
        if ((y > (top + bottom) / 2 ? data.TopAttachment : data.BottomAttachment) == withLine)
        {
            StrokeLine(end + (along * (left - x)), end + (along * (right - x)), pen, context);
        }
    }

    private void DrawLeaderLine(
        List<Vec3> points, CadMLeader leader, CadMLeaderLine line, in Pen pen, Vec3 landing)
    {
        double arrowSize = (line.OverrideFlags & OwnSize) != 0 ? line.ArrowheadSize : leader.ContextData.ArrowheadSize;
        DimensionArrow arrow = _tables.Dimensions.ArrowOf(
            (line.OverrideFlags & OwnArrowhead) != 0 ? line.ArrowheadHandle : leader.Style.ArrowheadHandle);
        Vec3 tip = points[0];
        Vec3 along = (points[1] - tip).Unit();
        if (arrowSize > 0 && (points[1] - tip).Length > 2 * arrowSize)
        {
            Current entity = _current;
            _current = entity with { Pen = pen };
            DrawArrowhead(arrow, tip, along, arrowSize, leader.ContextData.TextNormal);
            _current = entity;
            points[0] = tip + (along * (arrowSize * arrow.Setback));
        }

        var path = new PathPen(_canvas.NewPath(), _current.Context.Map);
        if (leader.Style.LeaderType == SplineLeader)
        {
            FitSpline.Draw(path, points, along, landing == default ? null : landing, closed: false);
        }
        else
        {
            points.ForEach(path.LineTo);
        }

        _canvas.Stroke(pen);
    }

    private MTextLayout LayoutOf(CadMLeaderContextData data, out double height)
    {
        StyleInfo used = _tables.StylesByHandle.TryGetValue(HandleOf(data.TextStyleHandle), out StyleInfo? style)
            ? style
            : StyleInfo.Outlined;
        height = data.TextHeight > 0 ? data.TextHeight : _tables.Settings.TextSize;
        double spacing = data.LineSpacingFactor is > 0 and < 100 ? data.LineSpacingFactor : 1;
        var frame = new MTextFrame(data.TextWidth, Math.Clamp((int)data.TextAttachment, 1, 3), spacing, false);
        return MTextLayout.Create(
            _canvas.Engine, MTextParser.Parse(data.Text, StartFormat(used, height)), frame, height);
    }

    private void DrawLeaderText(CadMLeader leader, in Pen pen, LayerInfo layer, BlockContext context)
    {
        CadMLeaderContextData data = leader.ContextData;
        MTextLayout layout = LayoutOf(data, out double height);
        Vec3 x = data.TextDirection.ToVec3().Unit();
        Vec3 normal = data.TextNormal.ToVec3().Unit();
        var plane = new Affine3(x, Vec3.Cross(normal, x), normal, data.TextLocation.ToVec3());
        Affine3 map = context.Map * plane;
        (double left, double bottom, double right, double top) = layout.Box;
        if (data.IsBackgroundMaskEnabled)
        {
            double grow = (Math.Clamp(data.BackgroundScaleFactor, 1, 5) - 1) * height;
            AddBox(map, left - grow, bottom - grow, right + grow, top + grow);
            Rgba color = data.IsBackgroundFillEnabled
                ? _style.Background
                : _pens.ColorOf(RawColor.Decode(unchecked((uint)data.BackgroundColor)), layer, context);
            _canvas.Fill(pen with { Color = color, Plot = null }, evenOdd: false);
        }

        if (leader.Style.IsTextFrameEnabled)
        {
            double gap = data.LandingGap;
            AddBox(map, left - gap, bottom - gap, right + gap, top + gap);
            _canvas.Stroke(pen with { Pattern = null });
        }

        TextPainter.Draw(_canvas, layout, map, pen, color => InlineColorOf(color, layer, context));
    }

    /// <summary>A table has its graphics in an anonymous block at its insertion point; without one it is drawn from its
    /// cells.</summary>
    void IGeometrySink.Table(CadTableEntity table, in Affine3 map)
    {
        (Pen pen, LayerInfo layer, BlockContext context, _) = _current;
        if (_tables.Blocks.TryGetValue(table.Name, out BlockInfo? block))
        {
            DrawBlock(block, context.Map * map * Affine3.Translation(-block.Base), layer, pen, context);
            return;
        }

        List<CadEntityBase> entities = TableGraphics.Create(table, _tables.CellSources);
        if (entities.Count == 0)
        {
            List.Skip("ACAD_TABLE without cells");
            return;
        }

        var cells = new BlockInfo(TableBlock + table.ObjectHandle, default, entities);
        DrawBlock(cells, context.Map * map, layer, pen, context);
    }
}
