using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>A picture of a metafile: the indexes of its first element after the descriptor and of its end.</summary>
internal sealed record MetafilePicture(string Name, int First, int End, PictureState State, PictureFrame Frame)
    : ScenePage(Name)
{
    internal override PaperSheet? SheetFor(in Bounds2 content) => Frame.Sheet;
}

/// <summary>A metafile as the renderer sees it: its pictures are its pages.</summary>
internal sealed class MetafileScene : VectorScene
{
    private readonly IReadOnlyList<Command> _commands;
    private readonly List<MetafilePicture> _pictures = [];
    private readonly HashSet<string> _names = new(StringComparer.OrdinalIgnoreCase);

    internal MetafileScene(CgmFile file)
    {
        _commands = file.Commands;
        var defaults = new PictureState();
        int at = ReadDescriptor(defaults);
        while (at < _commands.Count)
        {
            at = ReadPicture(defaults, at);
        }
    }

    internal override IReadOnlyList<ScenePage> Pages => _pictures;

    internal IReadOnlyList<MetafilePicture> Pictures => _pictures;

    /// <summary>Global segments, which all pictures may copy, by their names.</summary>
    internal Dictionary<int, Segment> Segments { get; } = [];

    protected override IReadOnlyList<ScenePage> DefaultPages => _pictures;

    internal override DrawingList Build(ScenePage page, RenderStyle style, TextEngine engine)
    {
        var picture = (MetafilePicture)page;
        var list = new DrawingList { ColorMap = style.ColorMap };
        new CgmInterpreter(this, picture, style, new Canvas(list, engine)).Run();
        return list;
    }

    internal Command CommandAt(int index) => _commands[index];

    /// <summary>Applies the elements before the first picture; returns the index of that.</summary>
    private int ReadDescriptor(PictureState defaults)
    {
        int segment = -1;
        for (int at = 0; at < _commands.Count; at++)
        {
            switch (_commands[at])
            {
                case BeginPicture:
                    return at;
                case BeginSegment begin:
                    segment = begin.Identifier;
                    Segments[segment] = new Segment(at + 1, at + 1);
                    break;
                case EndSegment when segment >= 0:
                    Segments[segment] = Segments[segment] with { End = at };
                    segment = -1;
                    break;
                case MetafileDefaultsReplacement replacement:
                    replacement.Commands.ForEach(command => StateChanges.Apply(defaults, command));
                    break;
                case Command command when segment < 0:
                    StateChanges.Apply(defaults, command);
                    break;
            }
        }

        return _commands.Count;
    }

    private int ReadPicture(PictureState defaults, int begin)
    {
        PictureState state = defaults.Clone();
        string name = ((BeginPicture)_commands[begin]).Identifier;
        int at = begin + 1;
        for (; at < _commands.Count && _commands[at] is not (BeginPictureBody or EndPicture or BeginPicture); at++)
        {
            StateChanges.Apply(state, _commands[at]);
        }

        int first = at;
        while (at < _commands.Count && _commands[at] is not (EndPicture or BeginPicture))
        {
            at++;
        }

        _pictures.Add(new MetafilePicture(NewName(name), first, at, state, PictureFrame.Of(state)));
        while (at < _commands.Count && _commands[at] is not BeginPicture)
        {
            at++;
        }

        return at;
    }

    /// <summary>Makes the identifier of a picture unique; files may leave it empty or use it twice.</summary>
    private string NewName(string name)
    {
        string number = (_pictures.Count + 1).ToString(CultureInfo.InvariantCulture);
        string wanted = name.Length > 0 ? name : $"Picture {number}";
        string free = wanted;
        for (int i = _pictures.Count + 1; !_names.Add(free); i++)
        {
            free = $"{wanted} ({i.ToString(CultureInfo.InvariantCulture)})";
        }

        return free;
    }
}

/// <summary>A segment: the indexes of its first element and of its end.</summary>
internal readonly record struct Segment(int First, int End);
