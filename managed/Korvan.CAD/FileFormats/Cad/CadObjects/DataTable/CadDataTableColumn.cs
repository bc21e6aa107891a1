using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.DataTable;

/// <summary>A column of a data table. Its type states which of the lists has the values.</summary>
public class CadDataTableColumn
{
    private const int IntegerType = 1;
    private const int NumberType = 2;
    private const int StringType = 3;
    private const int SpacePointType = 4;
    private const int ObjectType = 5;
    private const int HardOwnerType = 6;
    private const int SoftOwnerType = 7;
    private const int HardPointerType = 8;
    private const int SoftPointerType = 9;
    private const int BooleanType = 10;
    private const int PlanePointType = 11;

    /// <summary>Creates a column of numbers without values.</summary>
    public CadDataTableColumn()
    {
    }

    /// <summary>Gets or sets the type: 1 integers, 2 numbers, 3 strings, 4 points in space, 5 objects, 6 to 9 objects
    /// by hard ownership, soft ownership, hard pointers and soft pointers, 10 booleans, 11 points in the plane. Group
    /// code 92.</summary>
    public int ColumnType { get; set; } = NumberType;

    /// <summary>Gets or sets the name. Group code 2.</summary>
    public string Name { get; set; } = "";

    /// <summary>Gets the values of integers and booleans. The list is live. Group codes 93, 71.</summary>
    public List<int> Integers { get; } = [];

    /// <summary>Gets the values of numbers. The list is live. Group code 40.</summary>
    public List<double> Numbers { get; } = [];

    /// <summary>Gets the values of strings, and of objects as handles in hexadecimal. The list is live. Group codes 3,
    /// 331, 360, 350, 340, 330.</summary>
    public List<string> Strings { get; } = [];

    /// <summary>Gets the values of points. The list is live. Group codes 10, 20, 30 and 11, 21, 31.</summary>
    public IList<Cad3DPoint> Points { get; } = new CheckedList<Cad3DPoint>("points");

    /// <summary>Carries the column.</summary>
    /// <param name="fields">What carries it.</param>
    /// <param name="rows">The number of rows.</param>
    internal void Exchange(ObjectExchange fields, int rows)
    {
        ColumnType = fields.Int32(92, ColumnType);
        Name = fields.Text(2, Name);
        switch (ColumnType)
        {
            case IntegerType:
                fields.Run(93, Integers, rows);
                break;
            case NumberType:
                fields.Run(40, Numbers, rows);
                break;
            case StringType:
                fields.Run(3, Strings, rows);
                break;
            case BooleanType:
                fields.Run(71, Integers, rows);
                break;
            case SpacePointType:
                fields.Run(11, Points, rows);
                break;
            case PlanePointType:
                fields.Run(10, Points, rows);
                break;
            default:
                ExchangeHandles(fields, rows);
                break;
        }
    }

    private void ExchangeHandles(ObjectExchange fields, int rows)
    {
        (int code, HandleRole role) = CodeAndRole();
        if (code != 0)
        {
            fields.RunOfHandles(code, Strings, role, rows);
        }
    }

    private (int Code, HandleRole Role) CodeAndRole() => ColumnType switch
    {
        HardOwnerType => (360, HandleRole.HardOwner),
        SoftOwnerType => (350, HandleRole.SoftOwner),
        HardPointerType => (340, HandleRole.HardPointer),
        SoftPointerType => (330, HandleRole.SoftPointer),
        ObjectType => (331, HandleRole.SoftPointer),
        _ => (0, HandleRole.SoftPointer),
    };

    /// <summary>Carries the column.</summary>
    /// <param name="fields">What carries it.</param>
    /// <param name="rows">The number of rows.</param>
    internal void Exchange(BitExchange fields, int rows)
    {
        ColumnType = fields.BitLong(ColumnType);
        Name = fields.Text(Name);
        switch (ColumnType)
        {
            case IntegerType:
                Run(fields, Integers, rows, static (to, value) => to.BitLong(value));
                break;
            case BooleanType:
                Run(fields, Integers, rows, static (to, value) => to.Flag(value));
                break;
            case NumberType:
                Run(fields, Numbers, rows, static (to, value) => to.BitDouble(value));
                break;
            case StringType:
                Run(fields, Strings, rows, static (to, value) => to.Text(value ?? ""));
                break;
            case SpacePointType or PlanePointType:
                fields.Points3(Points, rows);
                break;
            default:
                HandleRole role = CodeAndRole().Role;
                Run(fields, Strings, rows, (to, value) => to.Handle(role, value ?? "0"));
                break;
        }
    }

    // A table that a program made may have fewer values than rows.
    private static void Run<T>(BitExchange fields, List<T> values, int rows, System.Func<BitExchange, T?, T> carry)
    {
        fields.Resize(values, rows);
        for (int i = 0; i < rows; i++)
        {
            T value = carry(fields, i < values.Count ? values[i] : default);
            if (fields.IsReading)
            {
                values[i] = value;
            }
        }
    }
}
