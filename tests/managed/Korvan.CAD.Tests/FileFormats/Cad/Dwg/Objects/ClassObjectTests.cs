using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadParameters;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Objects of classes that files define: the fields that their classes state use up the data of each object of
/// the real drawings to the last bit.</summary>
public class ClassObjectTests
{
    // How many of each class the drawings have.
    private const string Expected = """
        ACAD_EVALUATION_GRAPH 27, ACDBASSOC2DCONSTRAINTGROUP 8, ACDBASSOCACTION 12, ACDBASSOCALIGNEDDIMACTIONBODY 7,
        ACDBASSOCDEPENDENCY 37, ACDBASSOCEDGEACTIONPARAM 7, ACDBASSOCEXTRUDEDSURFACEACTIONBODY 1,
        ACDBASSOCGEOMDEPENDENCY 47, ACDBASSOCLOFTEDSURFACEACTIONBODY 1, ACDBASSOCNETWORK 31,
        ACDBASSOCOSNAPPOINTREFACTIONPARAM 7, ACDBASSOCPATHACTIONPARAM 9, ACDBASSOCPERSSUBENTMANAGER 10,
        ACDBASSOCPLANESURFACEACTIONBODY 1, ACDBASSOCREVOLVEDSURFACEACTIONBODY 1, ACDBASSOCSWEPTSURFACEACTIONBODY 1,
        ACDBASSOCVALUEDEPENDENCY 18, ACDBASSOCVARIABLE 22, ACDBASSOCVERTEXACTIONPARAM 7, ACDBPERSSUBENTMANAGER 9,
        ACDBSECTIONVIEWSTYLE 133, ACDB_BLOCKREPRESENTATION_DATA 21, ACDB_DYNAMICBLOCKPROXYNODE 1,
        ACDB_DYNAMICBLOCKPURGEPREVENTER_VERSION 15, ACSH_BOX_CLASS 2, ACSH_CONE_CLASS 1, ACSH_EXTRUSION_CLASS 1,
        ACSH_HISTORY_CLASS 11, ACSH_SWEEP_CLASS 7, ARC_DIMENSION 8, ASSOCDIMDEPENDENCYBODY 18, BLOCKALIGNMENTGRIP 3,
        BLOCKALIGNMENTPARAMETER 3, BLOCKARRAYACTION 1, BLOCKBASEPOINTPARAMETER 2, BLOCKFLIPACTION 5, BLOCKFLIPGRIP 5,
        BLOCKFLIPPARAMETER 5, BLOCKGRIPLOCATIONCOMPONENT 77, BLOCKLINEARGRIP 8, BLOCKLINEARPARAMETER 6,
        BLOCKMOVEACTION 3, BLOCKPOINTPARAMETER 1, BLOCKPOLARGRIP 8, BLOCKPOLARPARAMETER 4, BLOCKPOLARSTRETCHACTION 4,
        BLOCKROTATEACTION 2, BLOCKROTATIONGRIP 2, BLOCKROTATIONPARAMETER 2, BLOCKSCALEACTION 3, BLOCKSTRETCHACTION 9,
        BLOCKVISIBILITYGRIP 5, BLOCKVISIBILITYPARAMETER 5, BLOCKXYGRIP 5, BLOCKXYPARAMETER 1, CELLSTYLEMAP 73,
        DATATABLE 6, DIMASSOC 94, MENTALRAYRENDERSETTINGS 1, RAPIDRTRENDERSETTINGS 6, TABLECONTENT 10,
        TABLEGEOMETRY 10, WIPEOUTVARIABLES 10
        """;

    [DrawingFact]
    public void Fields_use_up_the_data_of_objects()
    {
        Dictionary<string, int> exact = [];
        foreach (string file in DwgSamples.Files())
        {
            LoadOptions options = new() { IgnoreErrors = true };
            foreach (string name in ExactObjects(DwgSamples.Open(File.ReadAllBytes(file), file, options)))
            {
                exact[name] = exact.GetValueOrDefault(name) + 1;
            }
        }

        string[] expected = [.. Expected.Split([',', '\n']).Select(static item => item.Trim())
            .Where(static item => item.Length > 0)];
        Assert.Equal(expected, expected.Select(item =>
        {
            string name = item.Split(' ')[0];
            return $"{name} {exact.GetValueOrDefault(name)}";
        }));
    }

    [DrawingTheory]
    [InlineData("lwg__example_2000")]
    [InlineData("lwg__example_2007")]
    [InlineData("lwg__example_2018")]
    public void Fields_have_the_values_of_the_same_drawing_as_text(string name)
    {
        Dictionary<string, CadObjectBase> written = Load(SharedDrawings.Dxf(name + ".dxf"));
        Dictionary<string, CadObjectBase> read = Load(SharedDrawings.Dwg(name + ".dwg"));
        string[] types = [.. Expected.Split([',', '\n', ' ']).Where(static word => word.Length > 3)];
        int compared = 0;
        foreach ((string handle, CadObjectBase item) in written.Where(pair => types.Contains(pair.Value.TypeNameText)))
        {
            // The two were not saved at once, so that some objects are in one of them only.
            if (read.TryGetValue(handle, out CadObjectBase? same))
            {
                Assert.Equal(Fields(item), Fields(same));
                compared++;
            }
        }

        Assert.True(compared >= 18, $"{compared} objects are compared");
    }

    private static Dictionary<string, CadObjectBase> Load(string path) =>
        ((CadImage)Image.Load(path, new LoadOptions { IgnoreErrors = true })).Objects.ToDictionary(
            static item => item.ObjectHandle);

    private static string Fields(CadObjectBase item) => $"{item.TypeNameText} {item.ObjectHandle} "
        + string.Join(' ', item.GetParameters().Select(static field => field is CadDoubleParameter number
            ? $"{number.Attribute}: {number.Value:G12}" : $"{field}".Replace(" ", "")));

    private static IEnumerable<string> ExactObjects(DwgFile file)
    {
        List<CadClassEntity> classes = ClassSection.Read(new HeaderReader(file.Classes, file.Release, file.Encoding));
        RecordReader reader = new(
            file.Objects, new RecordFormat(file.Release, file.Encoding, new RecordNames()), classes);
        foreach (long offset in file.Map.Offsets)
        {
            if (TryRead(reader, offset) is { } name)
            {
                yield return name;
            }
        }
    }

    private static string? TryRead(RecordReader reader, long offset)
    {
        try
        {
            RecordHeader header = reader.ReadHeader(offset);
            bool isKnown = reader.Read(header).Target is { HasBits: true };
            return isKnown && reader.DataRemaining == 0 ? reader.NameOf(header.Type) : null;
        }
        catch (DwgFault)
        {
            return null;
        }
    }
}
