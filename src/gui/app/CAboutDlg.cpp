#include "gui/app/CAboutDlg.h"

#include "gui/app/CContactInfoDlg.h"

#include <QPushButton>

CAboutDlg::CAboutDlg(QWidget* parent) : CInformationDlg("CAboutDlg", tr("About Ondara v3"), parent)
{
    const QString text = tr("Ondara, version %1\n\n"
                            "Predicts how a ship moves in waves, from her hull and loading and the sea that "
                            "she meets: motions, loads, slamming, deck wetness and what her crew feels of "
                            "it.\n\n"
                            "The calculations are those of the engine OE7.\n"
                            "Built with Qt and QCustomPlot.\n\n"
                            "Ondara is free software: you may share and change it under the terms of the GNU "
                            "General Public License, version 3 or later. It comes without any warranty.")
                             .arg(QStringLiteral(ONDARA_VERSION));
    auto* contact = new QPushButton(tr("&Contact Info"), this);
    contact->setObjectName("ContactInfo");
    connect(contact, &QPushButton::clicked, this,
            [this]
            {
                CContactInfoDlg information(this);
                information.exec();
            });
    LayOut(tr("Ondara"), text, contact);
}
