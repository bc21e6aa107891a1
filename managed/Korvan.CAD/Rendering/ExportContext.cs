using System;
using System.Diagnostics;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.DisplayList;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Text;
using Korvan.CAD.Rendering.Text.Strokes;

namespace Korvan.CAD.Rendering;

/// <summary>One export: the options that it follows and does not change, what it could not draw, and how long it took.
/// Two exports can share their options.</summary>
internal sealed class ExportContext
{
    private const double DefaultPixelsPerInch = 96;

    private readonly LoadOptions _loadOptions;
    private readonly long _start = Stopwatch.GetTimestamp();

    /// <summary>Begins an export.</summary>
    /// <param name="options">How to write.</param>
    /// <param name="loadOptions">How the image was read; they name folders of fonts.</param>
    internal ExportContext(ImageOptionsBase options, LoadOptions loadOptions)
    {
        (Options, _loadOptions) = (options, loadOptions);
    }

    internal ImageOptionsBase Options { get; }

    /// <summary>Gets what could not be drawn as it is.</summary>
    internal RenderNotes Notes { get; } = new();

    /// <summary>Gets the pixels an inch of output that consists of pixels.</summary>
    internal double Resolution =>
        Options.ResolutionSettings is { HorizontalResolution: > 0 } set ? set.HorizontalResolution
            : DefaultPixelsPerInch;

    /// <summary>Makes a text engine with the fonts that the image was loaded with.</summary>
    internal TextEngine NewEngine()
    {
        var strokes = new StrokeFaces();
        if (Options.VectorRasterizationOptions is CadRasterizationOptions drawing)
        {
            strokes.AddFiles(drawing.ShxFonts, drawing.ShxCodePages);
        }

        return new TextEngine(
            GlyphRendering.Of(Options.VectorRasterizationOptions), FontFolders.Of(_loadOptions, strokes), strokes);
    }

    /// <summary>Tells what became of the export.</summary>
    internal CadRenderResult Result() => new(Notes.Results(), Stopwatch.GetElapsedTime(_start))
    {
        FontSubstitutions = Notes.Fonts,
    };

    /// <summary>Runs the export. Every failure is an <see cref="ImageSaveException"/> that says why, but those of the
    /// stream that is written to.</summary>
    internal static void Guard(Action export)
    {
        try
        {
            export();
        }
        catch (RenderException e)
        {
            throw new ImageSaveException(e.Message, e.InnerException);
        }
        catch (Exception e) when (e is CadExceptions.ImageFormats.CadException or LimitMemoryException)
        {
            throw new ImageSaveException(e.Message);
        }
        catch (OutOfMemoryException)
        {
            throw new ImageSaveException("The drawing needs more memory than there is to be rendered.");
        }
    }
}
