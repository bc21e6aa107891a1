using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A subdivision mesh: the vertices, faces and creases of its control mesh, and how often it is
/// subdivided.</summary>
[CadObject("MESH", Subclass = "AcDbSubDMesh")]
[CadBits(
    "BS Version", "B BlendCrease", "BL SubdivisionLevel", "3BD[BL] Vertices", "BL[BL] FaceList", "ExchangeEdges()",
    "BD[BL] Creases", "BL")]
public partial class CadMesh : CadEntityBase
{
    /// <summary>Creates a mesh without vertices.</summary>
    public CadMesh()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 71.</summary>
    [CadShort(71)]
    public short Version { get; set; } = 2;

    /// <summary>Gets or sets whether creases fade out at their ends: 0 no, 1 yes. Group code 72.</summary>
    [CadShort(72)]
    public short BlendCrease { get; set; }

    /// <summary>Gets or sets how often the control mesh is subdivided; 0 for the control mesh itself. Group code
    /// 91.</summary>
    [CadInt(91)]
    public int SubdivisionLevel { get; set; }

    /// <summary>Gets the vertices of the control mesh, in world coordinates. The list is live. Group codes 92, 10,
    /// 20, 30.</summary>
    [CadList(10, Count = 92)]
    public IList<Cad3DPoint> Vertices { get; } = new CheckedList<Cad3DPoint>("vertices");

    /// <summary>Gets the faces one after the other: the number of corners of a face, then the indices of its corners
    /// among the vertices, from 0. The list is live. Group codes 93, 90.</summary>
    public List<int> FaceList { get; } = [];

    /// <summary>Gets the edges one after the other: two indices of vertices, from 0, for each. The list is live.
    /// Group codes 94, 90.</summary>
    public List<int> EdgeList { get; } = [];

    /// <summary>Gets the crease of each edge: up to which subdivision it stays sharp, 0 not at all, -1 always. The
    /// list is live. Group codes 95, 140.</summary>
    public List<double> Creases { get; } = [];

    /// <summary>Gets the properties of single faces, edges and vertices, whose group codes are those of the mesh
    /// again.</summary>
    internal List<CadCodeValue> Overrides { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        switch (code)
        {
            case 93:
                ReadIndices(FaceList, reader.GetCount(), reader);
                break;
            case 94:
                ReadIndices(EdgeList, 2L * reader.GetCount(), reader);
                break;
            case 95:
                ReadCreases(reader.GetCount(), reader);
                break;
            case 90:
                ReadOverrides(reader);
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields)
    {
        fields.Items(90, FaceList, fields.Count(93, FaceList.Count));
        fields.Items(90, EdgeList, 2 * fields.Count(94, EdgeList.Count / 2));
        fields.Items(140, Creases, fields.Count(95, Creases.Count));
        fields.Tags(Overrides);
    }

    private static void ReadIndices(List<int> indices, long count, FieldReader reader)
    {
        while (indices.Count < count && reader.Next())
        {
            if (reader.Code != 90)
            {
                reader.Unread();
                return;
            }

            indices.Add(reader.GetInt());
        }
    }

    private void ReadCreases(int count, FieldReader reader)
    {
        while (Creases.Count < count && reader.Next())
        {
            if (reader.Code != 140)
            {
                reader.Unread();
                return;
            }

            Creases.Add(reader.GetDouble());
        }
    }

    private void ReadOverrides(FieldReader reader)
    {
        const int subclassMarker = 100;
        const int firstXdata = 1000;
        do
        {
            Overrides.Add(reader.ToCodeValue());
        }
        while (reader.Next() && reader.Code is not (0 or subclassMarker or >= firstXdata));
        reader.Unread();
    }

    private void ExchangeEdges(BitExchange fields)
    {
        int count = fields.CountLong(EdgeList.Count / 2);
        fields.Resize(EdgeList, 2 * count);
        for (int i = 0; i < 2 * count; i++)
        {
            EdgeList[i] = fields.BitLong(EdgeList[i]);
        }
    }
}
