using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>Carries the nodes of a group of constraints between drawing databases and tags: constrained geometry and
/// constraints, which refer to each other by their numbers. Up to release 2010 a node begins with the name of its
/// class; later releases have a table of classes, and the class and number of each node before all nodes.</summary>
internal sealed class ConstraintNodes
{
    private const int Tables = 2013;
    private const int Owner = 330;
    private const string Circle = "AcConstrainedCircle";
    private const string Geometry = "330 H|90 BL";
    private const string Constraint = "90 BL|290 B|290 B";

    private static readonly Dictionary<string, string> Own = new()
    {
        ["AcConstrainedBoundedLine"] = Geometry + "|10 3BD|11 3BD|290 B|10 3BD|10 3BD",
        [Circle] = Geometry + "|10 3BD|11 3BD|12 3BD|40 BD|40 BD|40 BD",
        ["AcConstrainedDatumLine"] = Geometry + "|10 3BD|11 3BD",
        ["AcConstrainedImplicitPoint"] = Geometry + "|280 RC|90 BL|90 BL",
        ["AcCenterPointConstraint"] = Constraint,
        ["AcColinearConstraint"] = Constraint,
        ["AcConcentricConstraint"] = Constraint,
        ["AcEqualLengthConstraint"] = Constraint,
        ["AcEqualRadiusConstraint"] = Constraint,
        ["AcMidPointConstraint"] = Constraint,
        ["AcParallelConstraint"] = Constraint,
        ["AcPerpendicularConstraint"] = Constraint,
        ["AcPointCoincidenceConstraint"] = Constraint,
        ["AcPointCurveConstraint"] = Constraint,
        ["AcTangentConstraint"] = Constraint,
        ["AcDistanceConstraint"] = Constraint + "|340 H|340 H|v280 RC|if1+(10 3BD)",
        ["AcHorizontalConstraint"] = Constraint + "|90 BL",
        ["AcVerticalConstraint"] = Constraint + "|90 BL",
    };

    private static readonly Dictionary<string, RawFields> Lists =
        Own.ToDictionary(static pair => pair.Key, static pair => RawFields.Parse(pair.Value));

    private readonly List<Node> _nodes = [];

    /// <summary>Gets the number of nodes.</summary>
    internal int Count => _nodes.Count;

    /// <summary>Gets the largest number of a node.</summary>
    internal int MaxNumber => _nodes.Count == 0 ? 0 : _nodes.Max(static node => node.Number);

    /// <summary>Returns the nodes of tags; null where a class of them is not known.</summary>
    internal static ConstraintNodes? Parse(IReadOnlyList<CadCodeValue> tags)
    {
        ConstraintNodes result = new();
        int next = 0;
        while (next < tags.Count)
        {
            if (tags[next].Attribute != 1 || Node.Parse(tags, ref next) is not { } node)
            {
                return null;
            }

            result._nodes.Add(node);
        }

        return result;
    }

    /// <summary>Returns the tags of the nodes.</summary>
    /// <param name="owner">The handle of the owner of the group, in hexadecimal.</param>
    internal IEnumerable<CadCodeValue> ToTags(string owner) => _nodes.SelectMany(node => node.ToTags(owner));

    /// <summary>Carries the nodes after the largest number of one.</summary>
    internal void Exchange(BitExchange fields)
    {
        if (fields.Release >= Tables)
        {
            ExchangeTable(fields);
            _nodes.ForEach(node => node.Exchange(fields));
            return;
        }

        int count = fields.CountLong(_nodes.Count);
        for (int i = 0; i < count; i++)
        {
            Node node = fields.IsReading ? new Node() : _nodes[i];
            node.ClassName = fields.Text(node.ClassName);
            node.Exchange(fields);
            if (fields.IsReading)
            {
                _nodes.Add(node);
            }
        }
    }

    private void ExchangeTable(BitExchange fields)
    {
        if (fields.BitLong(0) != 0 || fields.BitLong(0) != 0 || fields.Bit(false))
        {
            throw fields.Fault("the table of constraints begins with other values than are known");
        }

        List<string> names = [.. _nodes.Select(static node => node.ClassName).Distinct()];
        int classes = fields.CountLong(names.Count);
        for (int i = 0; i < classes; i++)
        {
            string name = fields.Text(i < names.Count ? names[i] : "");
            if (fields.IsReading)
            {
                names.Add(name);
            }
        }

        int count = fields.CountLong(_nodes.Count);
        for (int i = 0; i < count; i++)
        {
            Node node = fields.IsReading ? new Node() : _nodes[i];
            fields.Bit(false);
            int index = fields.BitLong(names.IndexOf(node.ClassName) + 1);
            node.Number = fields.BitLong(node.Number);
            if (fields.IsReading)
            {
                node.ClassName = index >= 1 && index <= names.Count ? names[index - 1]
                    : throw fields.Fault($"the class {index} of a constraint, where {names.Count} are named");
                _nodes.Add(node);
            }
        }
    }

    /// <summary>A node.</summary>
    private sealed class Node
    {
        private const int NodeClass = 1;
        private const int Integer = 90;
        private const int Status = 70;

        private readonly List<int> _connections = [];
        private List<CadCodeValue> _fields = [];
        private int _status;

        internal string ClassName { get; set; } = "";

        internal int Number { get; set; }

        internal static Node? Parse(IReadOnlyList<CadCodeValue> tags, ref int next)
        {
            Node node = new() { ClassName = tags[next++].Value };
            next += next < tags.Count && tags[next].Attribute == Owner ? 1 : 0;
            if (!Take(tags, ref next, Integer, out int number) || !Take(tags, ref next, Status, out node._status)
                || !Take(tags, ref next, Integer, out int count))
            {
                return null;
            }

            node.Number = number;
            for (; count > 0; count--)
            {
                if (!Take(tags, ref next, Integer, out int other))
                {
                    return null;
                }

                node._connections.Add(other);
            }

            for (; next < tags.Count && tags[next].Attribute != NodeClass; next++)
            {
                node._fields.Add(tags[next]);
            }

            return Lists.ContainsKey(node.ClassName) ? node : null;
        }

        internal IEnumerable<CadCodeValue> ToTags(string owner) =>
        [
            new(NodeClass, ClassName), new(Owner, owner), Tag(Integer, Number), Tag(Status, _status),
            Tag(Integer, _connections.Count), .. _connections.Select(static one => Tag(Integer, one)), .. _fields,
        ];

        internal void Exchange(BitExchange fields)
        {
            RawFields own = Lists.GetValueOrDefault(ClassName)
                ?? throw fields.Fault($"{ClassName} is no constraint whose fields are known");
            int number = fields.BitLong(Number);
            if (fields.Release >= Tables && number != Number)
            {
                throw fields.Fault($"the constraint {Number} has the number {number}");
            }

            Number = number;
            ExchangeStatus(fields, fields.Release < Tables);
            int count = fields.CountLong(_connections.Count);
            for (int i = 0; i < count; i++)
            {
                int other = fields.BitLong(i < _connections.Count ? _connections[i] : 0);
                if (fields.IsReading)
                {
                    _connections.Add(other);
                }
            }

            ExchangeStatus(fields, fields.Release >= Tables);
            List<CadCodeValue> values = own.Exchange(fields, _fields);
            _fields = fields.IsReading ? values : _fields;
            if (ClassName == Circle && fields.Release >= Tables && fields.BitLong(0) != 0)
            {
                throw fields.Fault("a constrained circle has a value that is not known");
            }
        }

        private static CadCodeValue Tag(int code, int value) =>
            new(code, value.ToString(CultureInfo.InvariantCulture));

        private static bool Take(IReadOnlyList<CadCodeValue> tags, ref int next, int code, out int value)
        {
            value = 0;
            return next < tags.Count && tags[next].Attribute == code && int.TryParse(
                tags[next++].Value, NumberStyles.AllowLeadingSign | NumberStyles.AllowLeadingWhite,
                CultureInfo.InvariantCulture, out value);
        }

        private void ExchangeStatus(BitExchange fields, bool isHere) =>
            _status = isHere ? fields.RawByte(_status) : _status;
    }
}
