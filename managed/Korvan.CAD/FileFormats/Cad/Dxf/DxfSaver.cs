using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes drawings as interchange files.</summary>
internal static class DxfSaver
{
    internal static void Save(CadImage image, DxfOptions options, Stream stream)
    {
        throw new ImageSaveException($"{image} cannot be written with {options} to {stream}.");
    }
}
