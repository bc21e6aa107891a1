using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Header;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats;

/// <summary>Vector content, which is rendered on pages.</summary>
internal interface IPageContent
{
    /// <summary>Opens the pages for one export.</summary>
    VectorScene OpenScene();
}

/// <summary>A drawing.</summary>
internal interface IDrawingContent : IPageContent
{
    CadDrawing Drawing { get; }
}

/// <summary>A metafile.</summary>
internal interface IMetafileContent : IPageContent
{
    CgmFile File { get; }
}

/// <summary>A building model.</summary>
internal interface IBuildingContent
{
    IfcModel Model { get; }

    IfcHeader Header { get; }

    /// <summary>Gets the form in which the model was read.</summary>
    IfcFileForm Form { get; }
}

/// <summary>Raster images.</summary>
internal interface IPixelContent
{
    /// <summary>Opens the pages for one export.</summary>
    /// <param name="options">The options of the export.</param>
    /// <param name="all">Whether all pages are requested, or only the active one.</param>
    IRasterPages OpenPages(ImageOptionsBase options, bool all);
}
