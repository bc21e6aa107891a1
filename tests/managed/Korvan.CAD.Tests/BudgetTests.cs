using System;
using System.IO;
using System.Linq;
using System.Runtime.InteropServices;
using System.Text;
using System.Xml;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Geometry;
using Korvan.CAD.Input;
using Korvan.CAD.Raster.Codecs;
using Korvan.CAD.Raster.Colors;
using Korvan.CAD.Raster.Pixels;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Scene3D;
using Xunit;

namespace Korvan.CAD.Tests;

/// <summary>What one file may take, and that all who work for a call end with it. The heap is that of the process, so
/// these tests run alone: a drawing that another test loads meanwhile would be refused for what they hold.</summary>
[Collection("whole process")]
public sealed class BudgetTests
{
    private const int Small = 1000;

    [Fact]
    public void Steps_are_in_proportion_to_the_file_and_their_end_is_final()
    {
        using Budget budget = Budget.Begin(Small);
        Budget.Step(1_000_000);
        string message = Assert.Throws<LimitMemoryException>(() => Budget.Step(100_000)).Message;
        Assert.Contains("Cache.MaxMemoryForCache", message);
        Assert.Throws<LimitMemoryException>(Budget.Check);
        using (Budget.Begin(1 << 30))
        {
            Budget.Step(200_000_000);
        }

        using (Budget.Begin(null))
        {
            Budget.Step(long.MaxValue / 2);
        }

        Assert.Throws<LimitMemoryException>(Budget.Check);
    }

    [Fact]
    public void Arrays_beyond_the_memory_of_the_file_are_refused_before_they_are_made()
    {
        using Budget budget = Budget.Begin(Small);
        Budget.VerifyRoom(100 << 20);
        Assert.Throws<LimitMemoryException>(() => Budget.VerifyRoom(1L << 40));
    }

    [Fact]
    public void What_calls_on_other_threads_take_counts_against_theirs()
    {
        byte[] held = [];
        using Budget budget = Budget.Begin(Small);
        var other = new System.Threading.Thread(() =>
        {
            using Budget large = Budget.Begin(64 << 20);
            held = new byte[1 << 30];
        });
        other.Start();
        other.Join();
        budget.Poll();
        Assert.Equal(1 << 30, held.Length);
    }

    [Fact]
    public void Meshes_ask_for_room_before_they_grow()
    {
        // The heap of the process is that of all tests; what this thread allocates is the mesh alone.
        using Budget budget = Budget.Begin(Small);
        var mesh = new MeshBuilder();
        long before = GC.GetAllocatedBytesForCurrentThread();
        Assert.Throws<LimitMemoryException>(() =>
        {
            for (int i = 0; i < 5_000_000; i++)
            {
                mesh.Add([new Vec3(i, 0, 0), new Vec3(i, 1, 0), new Vec3(i, 0, 1)]);
            }
        });
        const int doubling = 2; // each growth leaves the smaller arrays behind
        Assert.InRange(GC.GetAllocatedBytesForCurrentThread() - before, 0, doubling * Budget.MinMemory);
    }

    [Fact]
    public void Buffers_of_gltf_ask_for_room_before_they_are_made()
    {
        const int positions = 7_000_000;
        var mesh = new Mesh();
        CollectionsMarshal.SetCount(mesh.Positions, positions);
        CollectionsMarshal.SetCount(mesh.Normals, positions);
        CollectionsMarshal.SetCount(mesh.TextureCoordinates, positions);
        var buffer = new GltfBuffer();
        buffer.PlaceOf(mesh, default);
        VerifyRefusedWithoutMemory(() => buffer.Write());
    }

    [Fact]
    public void Indices_of_pixels_ask_for_room_before_they_are_made()
    {
        using var pixels = new PixelGrid(20_000, 20_000);
        VerifyRefusedWithoutMemory(() => IndexedPixels.Of(pixels, [0, -1], DitheringMethods.None));
    }

    [Fact]
    public void Pixels_beyond_the_memory_of_the_file_are_on_disk()
    {
        using Budget budget = Budget.Begin(Small);
        using var large = new PixelGrid(8000, 8000);
        using var small = new PixelGrid(10, 10);
        Assert.True(Cache.AllocatedDiskBytesCount >= 8000 * 8000 * 4);
        for (int y = 0; y < large.Height; y++)
        {
            large.WritableRow(y).Fill(y);
        }

        Assert.All([0, 5000, 7999], y => Assert.True(large.Row(y).IndexOfAnyExcept(y) < 0));
        Assert.Equal(0, small.Row(9)[9]);
    }

    [Fact]
    public void Pieces_end_with_the_call_and_share_its_steps()
    {
        using Budget budget = Budget.Begin(Small);
        Assert.Throws<LimitMemoryException>(() => ForkedProcess.RunPieces(8, static _ => Budget.Step(200_000)));
        using Budget other = Budget.Begin(Small);
        InvalidDataException failure = Assert.Throws<InvalidDataException>(
            () => ForkedProcess.RunPieces(8, static i => throw new InvalidDataException($"{i}")));
        Assert.Single(failure.Message);
    }

    [Fact]
    public void Nobody_waits_for_a_long_call_once_the_time_is_over()
    {
        using var done = new System.Threading.ManualResetEventSlim();
        using var discarded = new System.Threading.ManualResetEventSlim();
        bool isReleased = false;
        var used = new Lifetime(() => isReleased = true);
        using (Budget.Begin(null, timeout: 1))
        {
            Assert.Throws<OperationInterruptedException>(() => LongCall.Run(
                () =>
                {
                    done.Wait();
                    return 7;
                },
                result => discarded.Set(), used));
        }

        used.End();
        Assert.False(isReleased); // the call still uses it
        done.Set();
        Assert.True(discarded.Wait(TimeSpan.FromSeconds(30)));
        Assert.True(isReleased);
    }

    [Fact]
    public void Dashes_are_laid_where_the_page_is()
    {
        var path = new PathBuffer();
        path.MoveTo(new Vec2(-1e12, 5));
        path.LineTo(new Vec2(1e12, 5));
        var dashes = new PathBuffer();
        Bounds2 page = Bounds2.Of(0, 0, 100, 10);
        Assert.True(DashSplitter.TrySplit(path, [3, 2], 0, 0.1, dashes, page));
        Assert.InRange(dashes.Verbs.Length, 2 * 20, 2 * 22);
        Assert.Equal(0, dashes.Coords[0], 0.001); // -1e12 is a multiple of the period
        Assert.Equal(3, dashes.Coords[2], 0.001);
        Assert.InRange(dashes.Bounds.MaxX, 97, 100);
        path.Clear();
        path.MoveTo(new Vec2(-1e12, 50));
        path.LineTo(new Vec2(1e12, 50));
        Assert.True(DashSplitter.TrySplit(path, [3, 2], 0, 0.1, dashes, page));
        Assert.True(dashes.IsEmpty);
    }

    [Fact]
    public void Nested_elements_have_a_limit()
    {
        static int Read(int depth)
        {
            string xml = string.Concat(Enumerable.Repeat("<a>", depth))
                + string.Concat(Enumerable.Repeat("</a>", depth));
            using XmlReader reader = SafeXml.Open(new MemoryStream(Encoding.ASCII.GetBytes(xml)));
            int deepest = 0;
            while (reader.Read())
            {
                deepest = Math.Max(deepest, reader.Depth);
            }

            return deepest;
        }

        Assert.Equal(SafeXml.MaxDepth, Read(SafeXml.MaxDepth + 1));
        Assert.Contains("nested deeper", Assert.Throws<XmlException>(() => Read(SafeXml.MaxDepth + 2)).Message);
    }

    [Theory]
    [InlineData("plain 'text' 1 < 2 and 3<4", "plain 'text' 1 < 2 and 3<4")]
    [InlineData("a\nb\u001B[2J\u0007\u0085", "a\\x0ab\\x1b[2J\\x07\\x85")]
    [InlineData("<script>1</script><!-- <?x", "\\x3cscript>1\\x3c/script>\\x3c!-- \\x3c?x")]
    [InlineData("\u202Egpj.exe\uFFFE \uD83D\uDE00", "\\u202egpj.exe\\ufffe \uD83D\uDE00")]
    public void Active_characters_of_files_are_escaped_in_messages(string text, string shown)
    {
        Assert.Equal(shown, SafeText.Of(text));
        Assert.Equal("\\ud800" + shown, SafeText.Of('\uD800' + text));
    }

    // The examples of RFC 1321, A.5.
    [Theory]
    [InlineData("", "D41D8CD98F00B204E9800998ECF8427E")]
    [InlineData("message digest", "F96B697D7CB7938D525A2F31AAF161D0")]
    [InlineData("12345678901234567890123456789012345678901234567890123456789012345678901234567890",
        "57EDF4A22BE3C955AC49DA2E2107B67A")]
    public void Digests_name_the_parts_of_metadata(string text, string digest) =>
        Assert.Equal(digest, Convert.ToHexString(Md5.Digest(Encoding.ASCII.GetBytes(text))));

    private static void VerifyRefusedWithoutMemory(Action action)
    {
        using Budget budget = Budget.Begin(Small);
        long before = GC.GetAllocatedBytesForCurrentThread();
        Assert.Throws<LimitMemoryException>(action);
        Assert.InRange(GC.GetAllocatedBytesForCurrentThread() - before, 0, 1 << 20);
    }
}
