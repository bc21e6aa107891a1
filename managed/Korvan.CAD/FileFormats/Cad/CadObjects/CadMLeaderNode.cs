using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A leader of a multileader: lines that meet at a landing.</summary>
[CadBits(
    "B HasLastLeaderLinePoint", "B HasDoglegVector", "if HasLastLeaderLinePoint: 3BD LastLeaderLinePoint",
    "if HasDoglegVector: 3BD DoglegVector", "ExchangeBreaks()", "BL LeaderIndex", "BD DoglegLength",
    "Part[BL] LeaderLines", "2010+ BS AttachmentDirection")]
public partial class CadMLeaderNode
{
    private const int LineStart = 304;
    private const int LineEnd = 305;

    /// <summary>Creates a leader without lines.</summary>
    public CadMLeaderNode()
    {
    }

    /// <summary>Gets or sets whether <see cref="LastLeaderLinePoint"/> is set. Group code 290.</summary>
    [CadBool(290)]
    public bool HasLastLeaderLinePoint { get; set; } = true;

    /// <summary>Gets or sets whether <see cref="DoglegVector"/> is set. Group code 291.</summary>
    [CadBool(291)]
    public bool HasDoglegVector { get; set; } = true;

    /// <summary>Gets or sets the point where the lines end and the landing begins, in world coordinates. Group codes
    /// 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    [CadWhen(nameof(HasLastLeaderLinePoint))]
    public Cad3DPoint LastLeaderLinePoint { get; set; } = new();

    /// <summary>Gets or sets the direction of the landing. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    [CadWhen(nameof(HasDoglegVector))]
    public Cad3DPoint DoglegVector { get; set; } = new();

    /// <summary>Gets the start points of the gaps in the landing, in world coordinates. The list is live. Group codes
    /// 12, 22, 32.</summary>
    [CadList(12)]
    public IList<Cad3DPoint> BreakStartPoints { get; } = new CheckedList<Cad3DPoint>("break_start_points");

    /// <summary>Gets the end points of the gaps in the landing, in world coordinates. The list is live. Group codes
    /// 13, 23, 33.</summary>
    [CadList(13)]
    public IList<Cad3DPoint> BreakEndPoints { get; } = new CheckedList<Cad3DPoint>("break_end_points");

    /// <summary>Gets or sets the index of the leader. Group code 90.</summary>
    [CadInt(90)]
    public int LeaderIndex { get; set; }

    /// <summary>Gets or sets the length of the landing. Group code 40.</summary>
    [CadDouble(40)]
    public double DoglegLength { get; set; }

    /// <summary>Gets the lines. The list is live. Group code 304.</summary>
    public IList<CadMLeaderLine> LeaderLines { get; } = new CheckedList<CadMLeaderLine>("leader_lines");

    /// <summary>Gets or sets whether the leader is attached at the side of the content (0) or at its top or bottom
    /// (1). Group code 271.</summary>
    public short AttachmentDirection { get; set; }

    /// <summary>Gets fields that the class does not have.</summary>
    internal List<CadCodeValue> Kept { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        switch (code)
        {
            case LineStart:
                CadMLeaderLine line = new();
                FieldParts.Read(reader, LineEnd, line.ReadField, line.Kept);
                LeaderLines.Add(line);
                break;
            case 271:
                AttachmentDirection = reader.GetShort();
                break;
            default:
                return;
        }

        taken = true;
    }

    partial void OnExchange(ObjectExchange fields)
    {
        int count = fields.Count(0, LeaderLines.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Brace(LineStart, "LEADER_LINE{");
            fields.Item(LeaderLines, i).Exchange(fields);
            fields.Brace(LineEnd, "}");
        }

        if (fields.Includes(2010, true))
        {
            AttachmentDirection = fields.Int16(271, AttachmentDirection);
        }

        fields.Tags(Kept);
    }

    private void ExchangeBreaks(BitExchange fields)
    {
        int count = fields.CountLong(BreakStartPoints.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Point3(fields.Item(BreakStartPoints, i));
            fields.Point3(fields.Item(BreakEndPoints, i));
        }
    }
}
