using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Interprets the elements of one picture and draws them (ISO/IEC 8632-1, clause 7).</summary>
internal sealed partial class CgmInterpreter
{
    /// <summary>A limit to the elements of one page with all copies of segments, against exponential copies.</summary>
    private const int MaxElements = 50_000_000;

    private static readonly Dictionary<Type, Action<CgmInterpreter, Command>> Drawers = Build();

    private readonly MetafileScene _scene;
    private readonly MetafilePicture _picture;
    private readonly RenderStyle _style;
    private readonly Canvas _canvas;
    private readonly PictureState _state;
    private readonly Dictionary<int, PaintState> _saved = [];
    private readonly PathBuffer _path = new();
    private Affine2 _map;
    private int _layer = -1;
    private int _elements;

    internal CgmInterpreter(MetafileScene scene, MetafilePicture picture, RenderStyle style, Canvas canvas)
    {
        _scene = scene;
        _picture = picture;
        _style = style;
        _canvas = canvas;
        _state = picture.State.Clone();
        _map = picture.Frame.ToPage;
        _segments = new(scene.Segments);
    }

    private DrawingList List => _canvas.List;

    private PaintState Paint => _state.Paint;

    /// <summary>The units of the page in one VDC unit.</summary>
    private double Scale => Math.Sqrt(Math.Abs(_map.Determinant));

    private double LongerSide => _picture.Frame.LongerSide;

    internal void Run()
    {
        PaintBackground();
        Run(_picture.First, _picture.End);
        FinishText();
        ReleaseClips();
    }

    private static Dictionary<Type, Action<CgmInterpreter, Command>> Build()
    {
        var drawers = new Dictionary<Type, Action<CgmInterpreter, Command>>();
        AddStructure(drawers);
        AddCurves(drawers);
        AddAreas(drawers);
        AddTexts(drawers);
        AddCells(drawers);
        return drawers;
    }

    private static void On<T>(Dictionary<Type, Action<CgmInterpreter, Command>> drawers, Action<CgmInterpreter, T> draw)
        where T : Command => drawers.Add(typeof(T), (interpreter, command) => draw(interpreter, (T)command));

    private static Vec2 V(CgmPoint point) => new(point.X, point.Y);

    private void Run(int first, int end)
    {
        for (int at = first; at < end; at++)
        {
            Budget.Step();
            if (++_elements > MaxElements)
            {
                throw new RenderException(
                    $"The picture \"{_picture.Name}\" is too large: with copies of segments it has more than "
                    + $"{MaxElements} elements.");
            }

            at = Step(_scene.CommandAt(at), at, end);
        }
    }

    /// <summary>Interprets one element; returns the index of the last one that it consumed.</summary>
    private int Step(Command command, int at, int end)
    {
        if (command is BeginSegment begin)
        {
            return RunSegment(begin, at, end);
        }

        if (!Drawers.TryGetValue(command.GetType(), out Action<CgmInterpreter, Command>? draw))
        {
            StateChanges.Apply(_state, command);
        }
        else if (IsShown || !Draws(command))
        {
            draw(this, command);
        }

        return at;
    }

    private void PaintBackground()
    {
        // A white background is left to the page, for which the caller may have chosen another colour.
        if (_state.Background?.Color is Color color && !(color.R == 255 && color.G == 255 && color.B == 255))
        {
            Bounds2 region = _picture.Frame.Region;
            PathBuffer path = _canvas.NewPath();
            path.MoveTo(new Vec2(region.MinX, region.MinY));
            path.LineTo(new Vec2(region.MaxX, region.MinY));
            path.LineTo(new Vec2(region.MaxX, region.MaxY));
            path.LineTo(new Vec2(region.MinX, region.MaxY));
            path.Close();
            List.Fill(path, new Rgba(color.R, color.G, color.B), -1, evenOdd: false);
        }
    }

    /// <summary>Clears the scratch path and returns a pen that draws VDC on it.</summary>
    private PathPen NewPath()
    {
        _path.Clear();
        return PenOn(_path);
    }

    private PathPen PenOn(PathBuffer path)
    {
        (Vec3 x, Vec3 y) = (new Vec3(_map.Xx, _map.Yx, 0), new Vec3(_map.Xy, _map.Yy, 0));
        return new PathPen(path, new Affine3(x, y, Vec3.UnitZ, new Vec3(_map.X0, _map.Y0, 0)));
    }
}
