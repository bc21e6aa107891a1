using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Entities that the model keeps as tags, but that have a picture: multi-leaders, tables, meshes.</content>
internal sealed partial class SceneBuilder
{
    private void DrawRaw(CadEntityBase entity, in Pen pen, LayerInfo layer, BlockContext context)
    {
        switch (entity.TypeNameText)
        {
            case "MULTILEADER" or "MLEADER":
                DrawMultiLeader(MultiLeader.Read(entity.UnknownCodes), pen, layer, context);
                break;
            case "ACAD_TABLE":
                DrawTable(new TagCursor(entity.UnknownCodes), pen, layer, context);
                break;
            case "MESH":
                DrawSubdivisionMesh(new TagCursor(entity.UnknownCodes), pen, context);
                break;
            default:
                List.Skip(entity.TypeNameText);
                break;
        }
    }

    private void DrawMultiLeader(MultiLeader leader, in Pen pen, LayerInfo layer, BlockContext context)
    {
        // "By block" inside of the entity is the entity's own colour.
        Pen entity = pen;
        Pen Own(uint raw)
        {
            Pen own = entity;
            own.Color = (raw >> 24) == (RawColor.ByBlock >> 24)
                ? entity.Color
                : pens.ColorOf(RawColor.Decode(raw), layer, context).WithAlpha(entity.Color.A);
            return own;
        }

        if (leader.LineType != 0)
        {
            foreach (MultiLeader.Leader branch in leader.Leaders)
            {
                DrawBranch(branch, leader, Own(leader.LineColor), context);
            }
        }

        if (leader.HasText && leader.Text.Length > 0)
        {
            DrawLeaderText(leader, Own(leader.TextColor), layer, context);
        }
        else if (leader.HasBlock && tables.BlocksByRecord.TryGetValue(leader.BlockRecord, out BlockInfo? block))
        {
            Vec3 s = leader.BlockScale;
            Affine3 map = context.Map * Affine3.Translation(leader.BlockPoint) * Ocs.ToWorld(leader.Normal)
                * Affine3.RotationZ(leader.BlockRotation) * Affine3.Scaling(NotZero(s.X), NotZero(s.Y), NotZero(s.Z)) * Affine3.Translation(-block.Base);
            DrawBlock(block, map, layer, pen, context);
        }
    }

    private void DrawBranch(MultiLeader.Leader branch, MultiLeader leader, in Pen pen, BlockContext context)
    {
        Vec3 start = branch.Landing;
        if (leader.HasLanding && branch.Length > 0)
        {
            var landing = new PathPen(canvas.NewPath(), context.Map);
            landing.MoveTo(start);
            landing.LineTo(start + (branch.Direction.Unit() * branch.Length));
            canvas.Stroke(pen);
        }

        foreach (List<Vec3> line in branch.Lines)
        {
            if (line.Count == 0)
            {
                continue;
            }

            var points = new List<Vec3>(line) { start };
            Vec3 tip = points[0];
            Vec3 along = (points[1] - tip).Unit();
            bool arrow = leader.ArrowSize > 0 && (points[1] - tip).Length > leader.ArrowSize;
            if (arrow)
            {
                DrawArrowHead(tip, along, leader.ArrowSize, leader.Normal, pen, context);
                points[0] = tip + (along * leader.ArrowSize);
            }

            var path = new PathPen(canvas.NewPath(), context.Map);
            if (leader.LineType == 2)
            {
                FitSpline.Draw(path, points, null, null, closed: false);
            }
            else
            {
                points.ForEach(path.LineTo);
            }

            canvas.Stroke(pen);
        }
    }

    private void DrawLeaderText(MultiLeader leader, in Pen pen, LayerInfo layer, BlockContext context)
    {
        StyleInfo used = tables.StylesByHandle.TryGetValue(leader.TextStyle, out StyleInfo? style) ? style : StyleInfo.Default;
        double height = leader.TextHeight > 0 ? leader.TextHeight : tables.Settings.TextSize;
        MTextFormat start = StartFormat(used, height);
        double spacing = leader.LineSpacing is > 0 and < 100 ? leader.LineSpacing : 1;
        var frame = new MTextFrame(leader.TextWidth, Math.Clamp(leader.TextAttachment, 1, 3), spacing, false);
        MTextLayout layout = MTextLayout.Create(canvas.Engine, MTextParser.Parse(leader.Text, start), frame, height);
        Vec3 x = leader.TextDirection.Unit();
        var plane = new Affine3(x, Vec3.Cross(leader.Normal.Unit(), x), leader.Normal.Unit(), leader.TextPoint);
        TextPainter.Draw(canvas, layout, context.Map * plane, pen, color => InlineColorOf(color, layer, context));
    }

    /// <summary>A table keeps its picture in an anonymous block at its insertion point.</summary>
    private void DrawTable(TagCursor tags, in Pen pen, LayerInfo layer, BlockContext context)
    {
        string name = string.Empty;
        Vec3? at = null;
        Vec3 direction = Vec3.UnitX;
        while (tags.Next())
        {
            switch (tags.Code)
            {
                case 2 when name.Length == 0:
                    name = tags.Text;
                    break;
                case 10 when at == null:
                    at = tags.Point();
                    break;
                case 11 when at != null && direction == Vec3.UnitX:
                    direction = tags.Point();
                    break;
            }
        }

        if (!tables.Blocks.TryGetValue(name, out BlockInfo? block))
        {
            List.Skip("ACAD_TABLE without a picture");
            return;
        }

        Affine3 placed = Affine3.Translation(at ?? default) * Affine3.RotationZ(Math.Atan2(direction.Y, direction.X));
        DrawBlock(block, context.Map * placed * Affine3.Translation(-block.Base), layer, pen, context);
    }

    private void DrawSubdivisionMesh(TagCursor tags, in Pen pen, BlockContext context)
    {
        var path = new PathPen(canvas.NewPath(), context.Map);
        foreach (Vec3[] face in SubdivisionCage.Read(tags).Faces())
        {
            path.MoveTo(face[^1]);
            foreach (Vec3 corner in face)
            {
                path.LineTo(corner);
            }
        }

        canvas.Stroke(pen);
    }
}
