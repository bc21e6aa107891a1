using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <content>Paragraphs, leaders and feature control frames.</content>
internal sealed partial class PlainEntities
{
    private const int WithParagraphs = 1994;
    private const string CellBreak = "%%v";

    void IGeometrySink.Paragraphs(CadMText text, in Affine3 plane) => AddParagraphs(text, plane);

    void IGeometrySink.Leader(CadLeader leader, List<Vec3> points)
    {
        const int spline = 1;
        CadDimensionStyleTable? style = _drawing.DimensionStyles.Find(leader.DimensionStyleName);
        double arrow = leader.ArrowheadFlag == 0 || style is null ? 0 : style.Dimasz * ScaleOf(style);
        AddLeader(points, arrow, leader.ExtrusionDirection.ToVec3(), leader.PathType == spline);
    }

    void IGeometrySink.MultiLeader(CadMLeader leader)
    {
        const int spline = 2;
        CadMLeaderContextData data = leader.ContextData;
        foreach (CadMLeaderNode branch in leader.Style.LeaderType == 0 ? [] : data.LeaderNodes)
        {
            Vec3 start = branch.LastLeaderLinePoint.ToVec3();
            if (leader.Style.IsLandingEnabled && branch.DoglegLength > 0)
            {
                AddLine(start, start + (branch.DoglegVector.ToVec3().Unit() * branch.DoglegLength));
            }

            foreach (CadMLeaderLine line in branch.LeaderLines)
            {
                List<Vec3> points = [.. line.Vertices.ConvertAll(ModelVectors.ToVec3), start];
                AddLeader(points, data.ArrowheadSize, data.TextNormal.ToVec3(), leader.Style.LeaderType == spline);
            }
        }

        if (data.HasText && data.Text.Length > 0)
        {
            AddText(data);
        }
        else if (data.HasBlock && NameOfRecord(data.Block.BlockRecordHandle) is { } name)
        {
            AddBlock(data.Block, name);
        }
    }

    void IGeometrySink.Tolerance(CadTolerance tolerance, in Affine3 plane)
    {
        CadDimensionStyleTable? style = _drawing.DimensionStyles.Find(tolerance.DimensionStyleName);
        double height = style is { Dimtxt: > 0 } ? style.Dimtxt * ScaleOf(style) : _drawing.Header.TextSize;
        double top = height;
        foreach (string row in tolerance.VisualRepresentation.Replace("^J", "\n", StringComparison.Ordinal).Split('\n'))
        {
            if (row.Length > 0)
            {
                AddRow(row, plane, top, height);
                top -= 2 * height;
            }
        }
    }

    // Cells stand side by side, each as wide as its text with a margin.
    private void AddRow(string row, in Affine3 plane, double top, double height)
    {
        double left = 0;
        foreach (string cell in row.Split(CellBreak))
        {
            if (cell.Length == 0)
            {
                continue;
            }

            string text = PlainText.FromMText(cell);
            double own = _measure(new CadText { DefaultValue = text, TextHeight = height });
            double width = Math.Max(2 * height, own + height);
            AddPolyline(
            [
                plane.Point(new Vec3(left, top - (2 * height), 0)),
                plane.Point(new Vec3(left + width, top - (2 * height), 0)),
                plane.Point(new Vec3(left + width, top, 0)),
                plane.Point(new Vec3(left, top, 0)),
            ], true);
            CadMText content = new()
            {
                Text = cell,
                InitialTextHeight = height,
                AttachmentPoint = CadAttachmentPoint.MiddleCenter,
                ExtrusionDirection = ToPoint(plane.AxisZ),
            };
            Vec3 middle = plane.Point(new Vec3(left + (width / 2), top - height, 0));
            AddParagraphs(content, new Affine3(plane.AxisX, plane.AxisY, plane.AxisZ, middle));
            left += width;
        }
    }

    private void AddParagraphs(CadMText text, in Affine3 plane)
    {
        if (_release < WithParagraphs)
        {
            foreach (CadText line in _texts.Lines(text, plane))
            {
                Add(line);
            }

            return;
        }

        text.InsertionPoint = ToPoint(plane.Origin);
        text.TextDirection = ToPoint(plane.AxisX);
        Add(text);
    }

    private void AddText(CadMLeaderContextData data)
    {
        Vec3 x = data.TextDirection.ToVec3().Unit();
        Vec3 normal = data.TextNormal.ToVec3().Unit();
        CadMText text = new()
        {
            Text = data.Text,
            InitialTextHeight = data.TextHeight > 0 ? data.TextHeight : _drawing.Header.TextSize,
            ReferenceRectangleWidth = data.TextWidth,
            AttachmentPoint = (CadAttachmentPoint)Math.Clamp((int)data.TextAttachment, 1, 3),
            LineSpacingFactor = data.LineSpacingFactor,
            ExtrusionDirection = ToPoint(normal),
        };
        if (HandleText.TryParse(data.TextStyleHandle, out ulong handle)
            && _drawing.Styles.Items.Find(style => style.Handle == handle) is { } style)
        {
            text.TextStyleName = style.Name;
        }

        AddParagraphs(text, new Affine3(x, Vec3.Cross(normal, x), normal, data.TextLocation.ToVec3()));
    }

    private void AddBlock(CadMLeaderBlock content, string name)
    {
        Affine3 plane = content.Normal.ToPlane();
        Vec3 at = content.Location.ToVec3();
        Add(new CadInsertObject
        {
            Name = name,
            InsertionPoint = new Cad3DPoint(
                Vec3.Dot(at, plane.AxisX), Vec3.Dot(at, plane.AxisY), Vec3.Dot(at, plane.AxisZ)),
            ExtrusionDirection = ToPoint(plane.AxisZ),
            RotationAngle = Angles.Degrees(content.Rotation),
            ScaleX = content.Scale.X,
            ScaleY = content.Scale.Y,
            ScaleZ = content.Scale.Z,
        });
    }

    // The tip is a filled triangle three times as long as it is wide, as long as the line has room for it.
    private void AddLeader(List<Vec3> points, double arrow, Vec3 normal, bool isSpline)
    {
        if (points.Count < 2)
        {
            return;
        }

        Vec3 along = (points[1] - points[0]).Unit();
        if (arrow > 0 && (points[1] - points[0]).Length > arrow)
        {
            AddArrowHead(points[0], along, arrow, normal);
        }

        if (!isSpline)
        {
            AddPolyline(points, false);
            return;
        }

        AddPolyline(SpaceCurve.Flatten(SpaceCurve.SizeOf(points), (in PathPen pen, double _) =>
            FitSpline.Draw(pen, points, null, null, closed: false)), false);
    }

    private void AddArrowHead(Vec3 tip, Vec3 along, double length, Vec3 normal)
    {
        Affine3 plane = Ocs.ToWorld(normal);
        Vec3 across = Vec3.Cross(plane.AxisZ, along).Unit() * (length / 6);
        Vec3 foot = tip + (along * length);
        Cad3DPoint Local(Vec3 p) =>
            new(Vec3.Dot(p, plane.AxisX), Vec3.Dot(p, plane.AxisY), Vec3.Dot(p, plane.AxisZ));
        Add(new CadSolid
        {
            FirstPoint = Local(tip),
            SecondPoint = Local(foot + across),
            ThirdPoint = Local(foot - across),
            FourthPoint = Local(foot - across),
            ExtrusionDirection = ToPoint(plane.AxisZ),
        });
    }

    private string? NameOfRecord(string handle) => HandleText.TryParse(handle, out ulong number)
        ? _drawing.BlockRecords.Items.Find(record => record.Handle == number)?.Name
        : null;

    private static double ScaleOf(CadDimensionStyleTable style) => style.Dimscale > 0 ? style.Dimscale : 1;
}
