using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Rendering;

/// <summary>Draws a drawing into a page format.</summary>
internal static class DrawingExporter
{
    internal static void Export(CadImage image, ImageOptionsBase options, Stream output)
    {
        throw new ImageSaveException($"No exporter is built in for {options.GetType().Name}.");
    }
}
