using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Walks the elements of one picture and draws what they say (ISO/IEC 8632-1, clause 7).</summary>
internal sealed partial class CgmInterpreter
{
    /// <summary>Elements that one page may take with all copies of segments; past it the picture is a bomb.</summary>
    private const int MaxElements = 50_000_000;
    private const int ElementsPerCheckpoint = 1024;

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

    /// <summary>Units of the page in a unit of the coordinates.</summary>
    private double Scale => Math.Sqrt(Math.Abs(_map.Determinant));

    private double Longest => _picture.Frame.Longest;

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
            if (++_elements % ElementsPerCheckpoint == 0)
            {
                _style.Checkpoint?.Invoke();
            }

            if (_elements > MaxElements)
            {
                throw new RenderException(
                    $"The picture \"{_picture.Name}\" draws more than {MaxElements} elements by copies of its segments; it is too large.");
            }

            at = Step(_scene.CommandAt(at), at, end);
        }
    }

    /// <summary>Carries out one element; gives the place of the last one that this took.</summary>
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
        // Paper is white of itself, and the caller may have chosen another colour for it.
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

    /// <summary>A pen that draws coordinates of the picture on the scratch path, which is empty.</summary>
    private PathPen NewPath()
    {
        _path.Clear();
        return PenOn(_path);
    }

    private PathPen PenOn(PathBuffer path) => new(
        path, new Affine3(new Vec3(_map.Xx, _map.Yx, 0), new Vec3(_map.Xy, _map.Yy, 0), Vec3.UnitZ, new Vec3(_map.X0, _map.Y0, 0)));
}
