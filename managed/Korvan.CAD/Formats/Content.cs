using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Ifc.Header;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Raster;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats;

/// <summary>Vector content, which is rendered on pages.</summary>
internal interface IPageContent
{
    /// <summary>Opens the pages for one export.</summary>
    VectorScene OpenScene();
}

/// <summary>Content that has faces in space.</summary>
internal interface IMeshContent
{
    /// <summary>Opens the meshes.</summary>
    /// <param name="context">The export; null outside of one.</param>
    /// <param name="request">What the format asks.</param>
    Scene3D.Scene OpenMeshes(ExportContext? context, MeshRequest request);
}

/// <summary>A drawing.</summary>
internal interface IDrawingContent : IPageContent, IMeshContent
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
