using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Security.Cryptography;
using System.Text;
using Xunit;

namespace Korvan.CAD.Tests.Surface;

/// <summary>The public surface is recorded in files that a change of it has to update; KORVAN_UPDATE_SNAPSHOTS=1 writes
/// them.</summary>
public sealed class PublicSurfaceTests
{
    [Fact]
    public void The_library_has_the_surface_of_its_file() =>
        Compare("managed/Korvan.CAD/PublicSurface.txt", SurfaceText.LinesOf(typeof(Image).Assembly));

    /// <summary>The classes of the schemas are generated from tables; each has a line with its base and a digest of its
    /// members.</summary>
    [Fact]
    public void The_schemas_have_the_surface_of_their_file()
    {
        Assembly schemas = Assembly.Load("Korvan.CAD.Schemas");
        Compare("managed/Korvan.CAD.Schemas/PublicSurface.txt", schemas.GetExportedTypes()
            .OrderBy(static type => type.FullName, StringComparer.Ordinal).Select(Digest));
    }

    private static string Digest(Type type)
    {
        string[] lines = [.. SurfaceText.LinesOf(type)];
        byte[] hash = SHA256.HashData(Encoding.UTF8.GetBytes(string.Join('\n', lines)));
        return $"{lines[0]}; {lines.Length - 1} members, {Convert.ToHexStringLower(hash)[..8]}";
    }

    private static void Compare(string file, IEnumerable<string> surface)
    {
        string[] actual = [.. surface];
        string path = Path.Combine(Path.GetDirectoryName(RepositoryFiles.Find("CMakePresets.json"))!, file);
        if (RepositoryFiles.Update)
        {
            File.WriteAllLines(path, actual);
            return;
        }

        string[] expected = File.Exists(path) ? File.ReadAllLines(path) : [];
        string[] removed = [.. expected.Except(actual)];
        string[] added = [.. actual.Except(expected)];
        Assert.True(removed.Length + added.Length == 0 && expected.Length == actual.Length,
            $"The public surface is not that of {file}; KORVAN_UPDATE_SNAPSHOTS=1 writes it anew.\n"
                + string.Join('\n', removed.Take(20).Select(static line => "- " + line))
                + "\n" + string.Join('\n', added.Take(20).Select(static line => "+ " + line)));
    }
}
