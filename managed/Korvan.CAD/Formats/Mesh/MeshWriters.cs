using System;
using System.IO;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Formats.Pages;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Meshes;

namespace Korvan.CAD.Formats.Mesh;

/// <summary>Writers of formats that hold meshes and nothing else.</summary>
internal static class MeshWriters
{
    /// <summary>Makes a writer.</summary>
    /// <param name="request">What the format asks of the scene.</param>
    /// <param name="write">Writes the scene.</param>
    internal static FormatWriter For<TOptions>(
        Func<TOptions, MeshRequest> request, Action<Scene3D.Scene, TOptions, Stream> write)
        where TOptions : ImageOptionsBase =>
        FormatWriter.For<IMeshContent, TOptions>(OutputKind.Faces, (content, options, context, output) =>
            PageWriters.Draw(content, context, () => write(Open(content, context, request(options)), options, output)));

    private static Scene3D.Scene Open(IMeshContent content, ExportContext context, MeshRequest request)
    {
        Scene3D.Scene scene = content.OpenMeshes(context, request);
        return scene.Instances().Any()
            ? scene
            : throw new RenderException(
                $"The drawing has no faces that show, and a file of the format "
                    + $"{Verify.NameOf(context.Options.TargetFormat)} holds nothing else: neither faces, meshes and "
                    + "solids nor anything that has a thickness.");
    }
}
