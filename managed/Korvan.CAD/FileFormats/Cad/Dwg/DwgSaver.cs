using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Dxf.Releases;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Dwg;

/// <summary>Writes drawing databases of releases 2000, 2004, 2010, 2013 and 2018.</summary>
internal static class DwgSaver
{
    private const int WithBinarySolids = 2004;

    private static readonly CadAcadVersion[] Written =
    [
        CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1027,
        CadAcadVersion.AC1032,
    ];

    /// <summary>Writes a drawing.</summary>
    /// <param name="drawing">The drawing. Objects that have none get handles; its content stays as it is.</param>
    /// <param name="options">The release.</param>
    /// <param name="output">The file.</param>
    /// <param name="createMeasurer">Makes what measures texts, where they have to be wrapped.</param>
    /// <returns>What the release cannot hold, and what was left out because it is kept in the form of another
    /// format.</returns>
    /// <exception cref="ImageSaveException">The release is not written.</exception>
    internal static IReadOnlyList<string> Save(
        CadDrawing drawing, DwgOptions options, Stream output, Func<ITextMeasurer?>? createMeasurer = null)
    {
        CadAcadVersion version = VersionOf(drawing, options);
        int release = DrawingRelease.Year(version);
        List<string> notes = [];
        DrawingIntegrity.VerifyPlaces(drawing);
        CadDrawing written = ReleaseConversion.IsNeeded(drawing, version)
            ? ReleaseConversion.Convert(drawing, version, createMeasurer, notes, release >= WithBinarySolids)
            : drawing;
        Prepare(written, release);
        Encoding encoding = DwgCodePage.Get(CodePageIndex.NameOf(CodePageIndex.IndexOf(written.Header.CodePage)));
        DwgObjectWriter objects = new(written, release, encoding);
        objects.Write();
        DwgContainer.Write(DwgContentBuilder.Build(written, version, objects.Objects, objects.Classes), output);
        notes.AddRange(ModelerNotes(written, release));
        return [.. notes, .. objects.LeftOut];
    }

    /// <summary>Completes a drawing before its objects are written.</summary>
    internal static void Prepare(CadDrawing drawing, int release)
    {
        List<CadDbColor> colors = BookColors.AddMissing(drawing, release);
        DrawingIntegrity.Prepare(drawing, release);
        BookColors.Link(drawing, colors);
        ShapeFiles.AddNumbers(drawing);
    }

    // Data of a modeler are written as they are: what later versions of it added cannot be taken out.
    private static IEnumerable<string> ModelerNotes(CadDrawing drawing, int release)
    {
        int known = release switch
        {
            < 2004 => 400,
            < 2010 => 20800,
            < 2013 => 21500,
            < 2018 => 21800,
            _ => int.MaxValue,
        };
        return DrawingWalk.Entities(drawing).OfType<CadObjectWithAcisData>()
            .Select(static solid => solid.AcisData.Count > 0 ? AcisVersions.Of(solid.AcisData[0])
                : AcisVersions.Of(solid.DataRecord?.Data))
            .Where(version => version > known).GroupBy(static version => version)
            .Select(group => $"{group.Count()} solids or surfaces have data of version {group.Key} of the modeler; "
                + $"programs of release {release} may know versions up to {known} only");
    }

    // Drawings of a release that is not written become those of the next one.
    private static CadAcadVersion VersionOf(CadDrawing drawing, DwgOptions options)
    {
        if (options.Version is not { } wanted || wanted == CadAcadVersion.None)
        {
            return Written.FirstOrDefault(version => version >= drawing.Version, CadAcadVersion.AC1032);
        }

        return Written.Contains(wanted) ? wanted : throw new ImageSaveException(
            $"Drawing databases of release {wanted} are not written; set version to one of "
                + $"{string.Join(", ", Written)}.");
    }
}
