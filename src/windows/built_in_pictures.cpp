#include "windows/built_in_pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

#include "commands/picture_catalogue.h"

namespace tamrix {
namespace {

// Every icon is drawn on a 24 by 24 grid, flat colours, round line ends.
constexpr double kGrid = 24.0;

const QColor kBlue(47, 128, 237);
const QColor kDarkBlue(31, 90, 180);
const QColor kGreen(39, 174, 96);
const QColor kRed(235, 87, 87);
const QColor kOrange(242, 153, 74);
const QColor kYellow(242, 201, 76);
const QColor kPurple(155, 81, 224);
const QColor kTeal(45, 156, 219);
const QColor kGrey(79, 79, 79);
const QColor kLightGrey(189, 189, 189);
const QColor kPaper(250, 250, 250);
const QColor kBrown(160, 110, 70);

void Stroke(QPainter& p, const QColor& colour, double width) {
  p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(Qt::NoBrush);
}

void Fill(QPainter& p, const QColor& colour) {
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
}

void Outlined(QPainter& p, const QColor& fill, const QColor& line, double width = 1.5) {
  p.setPen(QPen(line, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(fill);
}

// A filled arrow pointing right, for the pictures that point left mirrored.
void ArrowRight(QPainter& p) {
  Fill(p, kBlue);
  p.drawPolygon(QPolygonF({{3, 9}, {12, 9}, {12, 4}, {21, 12}, {12, 20}, {12, 15}, {3, 15}}));
}

// A curved arrow turning back to the left.
void UndoArrow(QPainter& p) {
  QPainterPath curve;
  curve.moveTo(6, 10);
  curve.lineTo(14, 10);
  curve.cubicTo(22, 10, 22, 20, 14, 20);
  curve.lineTo(9, 20);
  Stroke(p, kBlue, 2.6);
  p.drawPath(curve);
  Fill(p, kBlue);
  p.drawPolygon(QPolygonF({{2, 10}, {9, 4}, {9, 16}}));
}

void Mirrored(QPainter& p, void (*draw)(QPainter&)) {
  p.save();
  p.translate(kGrid, 0);
  p.scale(-1, 1);
  draw(p);
  p.restore();
}

void Check(QPainter& p, const QColor& colour, double width) {
  Stroke(p, colour, width);
  p.drawPolyline(QPolygonF({{5, 12.5}, {10, 17.5}, {19, 7}}));
}

void Person(QPainter& p, double x, double y, double scale, const QColor& colour) {
  Fill(p, colour);
  p.drawEllipse(QPointF(x, y), 3.2 * scale, 3.2 * scale);
  QPainterPath body;
  body.moveTo(x - 6 * scale, y + 11 * scale);
  body.cubicTo(x - 6 * scale, y + 4 * scale, x + 6 * scale, y + 4 * scale, x + 6 * scale, y + 11 * scale);
  body.closeSubpath();
  p.drawPath(body);
}

void Folder(QPainter& p) {
  Fill(p, kOrange);
  p.drawRoundedRect(QRectF(2, 5, 8, 4), 1, 1);
  Fill(p, kYellow);
  p.drawRoundedRect(QRectF(2, 7, 20, 13), 1.5, 1.5);
}

void PaintOk(QPainter& p) { Check(p, kGreen, 3.2); }

void PaintSave(QPainter& p) {
  Fill(p, kBlue);
  p.drawRoundedRect(QRectF(3, 3, 18, 18), 2.5, 2.5);
  Fill(p, kPaper);
  p.drawRect(QRectF(7, 3, 10, 6));
  p.drawRoundedRect(QRectF(6, 13, 12, 8), 1, 1);
  Fill(p, kDarkBlue);
  p.drawRect(QRectF(13, 4, 2.5, 4));
}

void PaintDelete(QPainter& p) {
  Fill(p, kRed);
  p.drawRoundedRect(QRectF(9, 2.5, 6, 3), 1, 1);
  p.drawRoundedRect(QRectF(4, 5, 16, 2.5), 1, 1);
  p.drawPolygon(QPolygonF({{6, 9}, {18, 9}, {17, 21}, {7, 21}}));
  Stroke(p, kPaper, 1.4);
  for (double x : {9.5, 12.0, 14.5}) p.drawLine(QPointF(x, 11.5), QPointF(x, 18.5));
}

void PaintExit(QPainter& p) {
  Outlined(p, kBrown, kBrown.darker(130));
  p.drawRect(QRectF(3, 3, 10, 18));
  Fill(p, kYellow);
  p.drawEllipse(QPointF(11, 12.5), 1, 1);
  Stroke(p, kRed, 2.6);
  p.drawLine(QPointF(12, 12), QPointF(20, 12));
  p.drawPolyline(QPolygonF({{17, 8.5}, {21, 12}, {17, 15.5}}));
}

void PaintOpen(QPainter& p) {
  Fill(p, kOrange);
  p.drawRoundedRect(QRectF(2, 5, 8, 4), 1, 1);
  p.drawRoundedRect(QRectF(2, 7, 17, 13), 1.5, 1.5);
  Fill(p, kYellow);
  p.drawPolygon(QPolygonF({{6, 11}, {23, 11}, {19, 20}, {2, 20}}));
}

void PaintNew(QPainter& p) {
  Outlined(p, kPaper, kGrey);
  p.drawPolygon(QPolygonF({{5, 2.5}, {14, 2.5}, {19, 7.5}, {19, 21.5}, {5, 21.5}}));
  Outlined(p, kLightGrey, kGrey);
  p.drawPolygon(QPolygonF({{14, 2.5}, {14, 7.5}, {19, 7.5}}));
  Fill(p, kGreen);
  p.drawEllipse(QPointF(17, 18), 5, 5);
  Stroke(p, kPaper, 1.8);
  p.drawLine(QPointF(17, 15.5), QPointF(17, 20.5));
  p.drawLine(QPointF(14.5, 18), QPointF(19.5, 18));
}

void PaintPrint(QPainter& p) {
  Outlined(p, kPaper, kGrey);
  p.drawRect(QRectF(7, 3, 10, 6));
  Fill(p, kGrey);
  p.drawRoundedRect(QRectF(2.5, 8, 19, 9), 2, 2);
  Outlined(p, kPaper, kGrey);
  p.drawRect(QRectF(7, 14, 10, 7));
  Fill(p, kGreen);
  p.drawEllipse(QPointF(18.5, 11), 1, 1);
}

void PaintAdd(QPainter& p) {
  Fill(p, kGreen);
  p.drawEllipse(QPointF(12, 12), 10, 10);
  Stroke(p, kPaper, 2.8);
  p.drawLine(QPointF(12, 7), QPointF(12, 17));
  p.drawLine(QPointF(7, 12), QPointF(17, 12));
}

void PaintFind(QPainter& p) {
  Stroke(p, kGrey, 3.6);
  p.drawLine(QPointF(15, 15), QPointF(21, 21));
  Outlined(p, QColor(220, 236, 255), kBlue, 2.6);
  p.drawEllipse(QPointF(10, 10), 6.5, 6.5);
}

void PaintDollar(QPainter& p) {
  Fill(p, kGreen);
  p.drawEllipse(QPointF(12, 12), 10, 10);
  QPainterPath s;
  s.moveTo(15.5, 8.5);
  s.cubicTo(14, 6.5, 8, 6.5, 8.5, 9.5);
  s.cubicTo(9, 12, 15.5, 11.5, 15.5, 14.5);
  s.cubicTo(15.5, 17.5, 9.5, 17.5, 8, 15.5);
  Stroke(p, kPaper, 2);
  p.drawPath(s);
  p.drawLine(QPointF(12, 5), QPointF(12, 19));
}

void PaintPeople(QPainter& p) {
  Person(p, 15.5, 7, 0.9, kTeal);
  Person(p, 9, 9, 1.05, kBlue);
}

void PaintGlass(QPainter& p) {
  Fill(p, kGrey);
  p.drawRoundedRect(QRectF(4, 2, 16, 2.5), 1, 1);
  p.drawRoundedRect(QRectF(4, 19.5, 16, 2.5), 1, 1);
  Outlined(p, QColor(230, 240, 250), kLightGrey, 1.2);
  p.drawPolygon(QPolygonF({{6, 4.5}, {18, 4.5}, {13, 12}, {18, 19.5}, {6, 19.5}, {11, 12}}));
  Fill(p, kOrange);
  p.drawPolygon(QPolygonF({{8.5, 7}, {15.5, 7}, {12, 11}}));
  p.drawPolygon(QPolygonF({{12, 15}, {16.5, 19}, {7.5, 19}}));
}

void PaintOk2(QPainter& p) {
  Fill(p, kGreen);
  p.drawEllipse(QPointF(12, 12), 10, 10);
  Check(p, kPaper, 2.6);
}

void PaintForbidden(QPainter& p) {
  Stroke(p, kRed, 3);
  p.drawEllipse(QPointF(12, 12), 8.5, 8.5);
  p.drawLine(QPointF(6, 6), QPointF(18, 18));
}

void PaintUndo(QPainter& p) { UndoArrow(p); }
void PaintRedo(QPainter& p) { Mirrored(p, UndoArrow); }
void PaintRight(QPainter& p) { ArrowRight(p); }
void PaintLeft(QPainter& p) { Mirrored(p, ArrowRight); }

void PaintTools(QPainter& p) {
  p.save();
  p.translate(12, 12);
  p.rotate(45);
  Fill(p, kGrey);
  p.drawRoundedRect(QRectF(-1.8, -2, 3.6, 13), 1.5, 1.5);
  QPainterPath head;
  head.addEllipse(QPointF(0, -5.5), 5.5, 5.5);
  QPainterPath notch;
  notch.addRect(QRectF(-2, -12, 4, 7));
  p.drawPath(head.subtracted(notch));
  p.restore();
}

void PaintMoney(QPainter& p) {
  Outlined(p, QColor(111, 207, 151), kGreen.darker(120));
  p.drawRoundedRect(QRectF(2, 6, 20, 12), 1.5, 1.5);
  Outlined(p, QColor(200, 240, 215), kGreen.darker(120), 1.2);
  p.drawEllipse(QPointF(12, 12), 3.5, 3.5);
  Fill(p, kGreen.darker(120));
  p.drawEllipse(QPointF(5.5, 12), 1, 1);
  p.drawEllipse(QPointF(18.5, 12), 1, 1);
}

void PaintExit2(QPainter& p) {
  Stroke(p, kRed, 2.8);
  p.drawArc(QRectF(4, 4.5, 16, 16), 120 * 16, 300 * 16);
  p.drawLine(QPointF(12, 2.5), QPointF(12, 11));
}

void PaintForm(QPainter& p) {
  Outlined(p, kPaper, kGrey);
  p.drawRoundedRect(QRectF(3.5, 2.5, 17, 19), 1.5, 1.5);
  Fill(p, kBlue);
  p.drawRect(QRectF(4.3, 3.3, 15.4, 3.5));
  for (double y : {9.5, 13.5, 17.5}) {
    Outlined(p, kPaper, kBlue, 1.1);
    p.drawRect(QRectF(6, y, 2.5, 2.5));
    Stroke(p, kLightGrey, 1.4);
    p.drawLine(QPointF(10.5, y + 1.25), QPointF(18, y + 1.25));
  }
}

void PaintGear(QPainter& p) {
  QPainterPath gear;
  constexpr int kTeeth = 8;
  QPolygonF outline;
  for (int i = 0; i < kTeeth * 4; ++i) {
    const double angle = (i - 0.5) * M_PI / (kTeeth * 2);
    const double radius = (i % 4 < 2) ? 10.5 : 7.8;
    outline << QPointF(12 + radius * std::cos(angle), 12 + radius * std::sin(angle));
  }
  gear.addPolygon(outline);
  gear.closeSubpath();
  QPainterPath hole;
  hole.addEllipse(QPointF(12, 12), 3.2, 3.2);
  Fill(p, kGrey);
  p.drawPath(gear.subtracted(hole));
}

void PaintBook(QPainter& p) {
  Fill(p, kPaper);
  p.drawRect(QRectF(7, 4, 13, 17));
  Outlined(p, kBlue, kDarkBlue, 1.2);
  p.drawRoundedRect(QRectF(4, 2.5, 14, 17.5), 1.5, 1.5);
  Fill(p, kDarkBlue);
  p.drawRect(QRectF(4.5, 3, 2.5, 16.5));
  Fill(p, kYellow);
  p.drawRect(QRectF(9.5, 6.5, 6, 2));
}

void PaintBooks(QPainter& p) {
  struct Spine {
    double x, top, width;
    QColor colour;
  };
  for (const Spine& s : {Spine{2.5, 5, 5, kRed}, Spine{8, 3, 6, kBlue}, Spine{14.5, 6, 4.5, kGreen}}) {
    Outlined(p, s.colour, s.colour.darker(130), 1);
    p.drawRoundedRect(QRectF(s.x, s.top, s.width, 21 - s.top), 1, 1);
    Stroke(p, kPaper, 1);
    p.drawLine(QPointF(s.x + 1, s.top + 3), QPointF(s.x + s.width - 1, s.top + 3));
  }
  p.save();
  p.translate(19.5, 6.5);
  p.rotate(14);
  Outlined(p, kPurple, kPurple.darker(130), 1);
  p.drawRoundedRect(QRectF(0, 0, 3.8, 14.5), 1, 1);
  p.restore();
}

void PaintBall(QPainter& p) {
  const QRectF ball(2, 2, 20, 20);
  const QColor colours[] = {kRed, kYellow, kBlue};
  for (int i = 0; i < 6; ++i) {
    Fill(p, colours[i % 3]);
    p.drawPie(ball, i * 60 * 16, 60 * 16);
  }
  Fill(p, kPaper);
  p.drawEllipse(QPointF(12, 12), 3, 3);
  Stroke(p, kGrey, 1);
  p.drawEllipse(ball);
}

void PaintCalendar(QPainter& p) {
  Outlined(p, kPaper, kGrey);
  p.drawRoundedRect(QRectF(3, 4, 18, 17), 2, 2);
  Fill(p, kRed);
  p.drawRoundedRect(QRectF(3, 4, 18, 5), 2, 2);
  p.drawRect(QRectF(3, 7, 18, 2));
  Stroke(p, kGrey, 2);
  p.drawLine(QPointF(8, 2.5), QPointF(8, 6));
  p.drawLine(QPointF(16, 2.5), QPointF(16, 6));
  Fill(p, kLightGrey);
  for (int row = 0; row < 3; ++row) {
    for (int col = 0; col < 4; ++col) p.drawRect(QRectF(5.5 + col * 3.5, 11 + row * 3.2, 2.2, 2));
  }
  Fill(p, kBlue);
  p.drawRect(QRectF(12.5, 14.2, 2.2, 2));
}

void PaintChart(QPainter& p) {
  Fill(p, kBlue);
  p.drawRoundedRect(QRectF(4, 11, 4, 9), 0.8, 0.8);
  Fill(p, kGreen);
  p.drawRoundedRect(QRectF(10, 5, 4, 15), 0.8, 0.8);
  Fill(p, kOrange);
  p.drawRoundedRect(QRectF(16, 8, 4, 12), 0.8, 0.8);
  Stroke(p, kGrey, 1.6);
  p.drawLine(QPointF(2.5, 21), QPointF(21.5, 21));
}

void PaintFolder(QPainter& p) { Folder(p); }

void PaintKeys(QPainter& p) {
  p.save();
  p.translate(12, 12);
  p.rotate(-40);
  QPainterPath key;
  key.addEllipse(QPointF(-5.5, 0), 5, 5);
  key.addRect(QRectF(-1, -1.4, 11.5, 2.8));
  key.addRect(QRectF(6, 1, 2, 3));
  key.addRect(QRectF(9, 1, 1.6, 2.2));
  QPainterPath hole;
  hole.addEllipse(QPointF(-6.5, 0), 1.7, 1.7);
  Fill(p, QColor(224, 172, 40));
  p.drawPath(key.simplified().subtracted(hole));
  p.restore();
}

void PaintGlobe(QPainter& p) {
  Fill(p, kTeal);
  p.drawEllipse(QPointF(12, 12), 10, 10);
  Stroke(p, QColor(255, 255, 255, 200), 1.2);
  p.drawEllipse(QPointF(12, 12), 4.5, 10);
  p.drawLine(QPointF(12, 2), QPointF(12, 22));
  p.drawLine(QPointF(2, 12), QPointF(22, 12));
  p.drawLine(QPointF(4, 7), QPointF(20, 7));
  p.drawLine(QPointF(4, 17), QPointF(20, 17));
}

void PaintTalk(QPainter& p) {
  QPainterPath bubble;
  bubble.addRoundedRect(QRectF(2, 3, 20, 14), 4, 4);
  QPainterPath tail;
  tail.addPolygon(QPolygonF({{6, 15}, {12, 15}, {5, 21.5}}));
  Fill(p, kBlue);
  p.drawPath(bubble.united(tail));
  Fill(p, kPaper);
  for (double x : {7.0, 12.0, 17.0}) p.drawEllipse(QPointF(x, 10), 1.5, 1.5);
}

void PaintMonitor(QPainter& p) {
  Fill(p, kGrey);
  p.drawRoundedRect(QRectF(2, 3, 20, 14), 1.5, 1.5);
  p.drawPolygon(QPolygonF({{10, 17}, {14, 17}, {15, 20}, {9, 20}}));
  p.drawRoundedRect(QRectF(6.5, 19.5, 11, 2), 1, 1);
  Fill(p, kTeal);
  p.drawRect(QRectF(3.5, 4.5, 17, 11));
  Fill(p, QColor(255, 255, 255, 90));
  p.drawPolygon(QPolygonF({{3.5, 4.5}, {12, 4.5}, {3.5, 12}}));
}

using PaintFunction = void (*)(QPainter&);

// In catalogue order.
constexpr PaintFunction kPainters[] = {
    PaintOk,    PaintSave,   PaintDelete, PaintExit,  PaintOpen,      PaintNew,    PaintPrint,
    PaintAdd,   PaintFind,   PaintDollar, PaintPeople, PaintGlass,    PaintOk2,    PaintForbidden,
    PaintUndo,  PaintRedo,   PaintRight,  PaintLeft,  PaintTools,     PaintMoney,  PaintExit2,
    PaintForm,  PaintGear,   PaintBook,   PaintBooks, PaintBall,      PaintCalendar, PaintChart,
    PaintFolder, PaintKeys,  PaintGlobe,  PaintTalk,  PaintMonitor,
};
static_assert(std::size(kPainters) == kPicCount);

QImage Draw(PaintFunction paint) {
  QImage image(kBuiltInPictureSize, kBuiltInPictureSize, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kBuiltInPictureSize / kGrid, kBuiltInPictureSize / kGrid);
  paint(painter);
  return image;
}

}  // namespace

QImage BuiltInPicture(int number) {
  static std::array<QImage, kPicCount> pictures;
  if (number < 0 || number >= kPicCount) return QImage();
  QImage& picture = pictures[static_cast<std::size_t>(number)];
  if (picture.isNull()) picture = Draw(kPainters[number]);
  return picture;
}

}  // namespace tamrix
